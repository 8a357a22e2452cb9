// Reads a capture with @mcap/core, as a stream and by its index, and compares both with what was written:
// read_capture.cjs FILE MESSAGES
"use strict";
const assert = require("assert");
const fs = require("fs");
const { McapIndexedReader, McapStreamReader } = require("@mcap/core");
const { loadDecompressHandlers } = require("@mcap/support");
const protobuf = require("protobufjs/minimal.js");

const [file, expected] = process.argv.slice(2);
const TOPICS = { "/serial/rx": 3000, "/serial/tx": 3, "/kv/events": 3, "/imu/0": 3000, "/imu/1": 3000, "/imu/2": 3000 };

/** What makes two messages the same. */
const text = (topic, message) =>
  [topic, message.sequence, message.logTime, message.publishTime, Buffer.from(message.data).toString("hex")].join(" ");

async function stream(decompressHandlers) {
  const reader = new McapStreamReader({ decompressHandlers, validateCrcs: true });
  const channels = new Map();
  const schemas = new Map();
  const found = [];
  const bytes = fs.readFileSync(file);
  for (let at = 0; at < bytes.length; at += 65536) {
    reader.append(bytes.subarray(at, at + 65536));
    for (let record; (record = reader.nextRecord()); ) {
      if (record.type === "Schema") schemas.set(record.id, record);
      else if (record.type === "Channel") channels.set(record.id, record);
      else if (record.type === "Message") found.push({ topic: channels.get(record.channelId).topic, message: record });
    }
  }
  assert(reader.done(), "the stream reader is at the end");
  for (const channel of channels.values()) assert(schemas.has(channel.schemaId), `${channel.topic} has a schema`);
  return found;
}

async function indexed(decompressHandlers) {
  const handle = await fs.promises.open(file);
  const readable = {
    size: async () => BigInt((await handle.stat()).size),
    read: async (offset, length) => {
      const { buffer } = await handle.read(new Uint8Array(Number(length)), 0, Number(length), Number(offset));
      return buffer;
    },
  };
  const reader = await McapIndexedReader.Initialize({ readable, decompressHandlers });
  const found = [];
  for await (const message of reader.readMessages())
    found.push({ topic: reader.channelsById.get(message.channelId).topic, message });
  for (const [id, channel] of reader.channelsById)
    assert.strictEqual(Number(reader.statistics.channelMessageCounts.get(id)), TOPICS[channel.topic], channel.topic);
  assert.strictEqual(Number(reader.statistics.messageCount), found.length);
  const metadata = [];
  for await (const record of reader.readMetadata()) metadata.push(record);
  assert.strictEqual(metadata[0].name, "kv");
  assert.strictEqual(metadata[0].metadata.get("port"), "/dev/ttyUSB0");
  const groups = [...reader.summaryOffsetsByOpcode.keys()];
  for (const kind of [0x03, 0x04, 0x08, 0x0b, 0x0d]) assert(groups.includes(kind), `offset of group ${kind}`);
  checkContent(found, reader);
  await handle.close();
  return found;
}

function checkContent(found, reader) {
  for (const schema of reader.schemasById.values()) {
    if (schema.encoding !== "jsonschema") continue;
    const parsed = JSON.parse(Buffer.from(schema.data).toString());
    assert.strictEqual(parsed.type, "object");
    for (const property of Object.values(parsed.properties)) assert(["number", "string"].includes(property.type));
  }
  for (const topic of Object.keys(TOPICS)) {
    const messages = found.filter((each) => each.topic === topic).map((each) => each.message);
    assert.strictEqual(messages.length, TOPICS[topic], topic);
    messages.forEach((message, i) => {
      assert.strictEqual(message.sequence, i + 1, `${topic} has no gap`);
      assert.strictEqual(message.logTime, message.publishTime);
      if (topic.startsWith("/serial/")) {
        const reading = protobuf.Reader.create(message.data);
        assert.strictEqual(reading.uint32(), 10);
        const bytes = reading.bytes();
        assert.strictEqual(reading.pos, reading.len);
        if (topic === "/serial/rx") assert(Buffer.from(bytes).equals(Buffer.alloc(82, i & 0xff)));
      } else {
        const object = JSON.parse(Buffer.from(message.data).toString());
        if (topic === "/kv/events") return assert.strictEqual(object.text, 'Größe "1" 長さ');
        assert.strictEqual(object.device_time_ms, 4294967295 - i);
        assert.strictEqual(Math.fround(object.acc_x_g), Math.fround(Math.fround(0.1) * i));
        assert.strictEqual("acc_y_g" in object, i !== 7);
        assert.strictEqual("roll_deg" in object, topic !== "/imu/2");
        assert.strictEqual(object.stream_time_ms, 0.5 * i);
      }
    });
  }
}

async function main() {
  const handlers = await loadDecompressHandlers();
  const byStream = await stream(handlers);
  const byIndex = await indexed(handlers);
  assert.strictEqual(byStream.length, Number(expected));
  const sorted = (found) => found.map((each) => text(each.topic, each.message)).sort();
  assert.deepStrictEqual(sorted(byStream), sorted(byIndex));
  console.log(`${byStream.length} messages read as a stream and by the index`);
}

main().catch((error) => {
  console.error(error);
  process.exit(1);
});
