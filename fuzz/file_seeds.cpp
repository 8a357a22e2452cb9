// Files that users open: spectrum snapshots, models, settings.

#include <QtEndian>

#include "fft/fft_snapshot.h"
#include "fuzz/seeds.h"

namespace {

/// Little-endian values, one after the other, padded like mesh files.
class MeshBytes
{
public:
    MeshBytes &u16(quint16 value) { return append(value); }
    MeshBytes &u32(std::initializer_list<quint32> values)
    {
        for (const quint32 value : values)
            append(value);
        return *this;
    }
    MeshBytes &f32(std::initializer_list<float> values)
    {
        for (const float value : values)
            append(value);
        return *this;
    }
    MeshBytes &raw(const QByteArray &bytes)
    {
        m_bytes += bytes;
        return *this;
    }
    /// Pads to the next multiple of 4 in the file, by 4 bytes if already on one.
    MeshBytes &pad() { return raw(QByteArray(4 - m_bytes.size() % 4, '\0')); }
    const QByteArray &bytes() const { return m_bytes; }

private:
    template <typename T> MeshBytes &append(T value)
    {
        char buffer[sizeof(T)];
        qToLittleEndian(value, buffer);
        m_bytes.append(buffer, sizeof(T));
        return *this;
    }

    QByteArray m_bytes;
};

/// One triangle; `indexType` 3 for indices of 16 bits, 5 for 32.
QByteArray meshFile(quint32 indexType)
{
    MeshBytes body;
    body.u32({0, 2, 24, 0, 72, indexType, 0, indexType == 3 ? 6U : 12U, 0, 1, 0, 0, 7, 1});
    body.u32({0, 10, 3, 0, 0, 10, 3, 12}).pad();
    body.u32({9}).raw(QByteArray("attr_pos", 9)).pad().u32({10}).raw(QByteArray("attr_norm", 10)).pad();
    body.f32({0, 0, 0, 0, 0, 1, 1, 0, 0, 0, 0, 1, 0, 1, 0, 0, 0, 1}).pad();
    if (indexType == 3)
        body.u16(0).u16(1).u16(2);
    else
        body.u32({0, 1, 2});
    body.pad();
    body.u32({3, 0}).f32({0, 0, 0, 1, 1, 0}).u32({0, 5, 0, 0}).pad();
    body.raw(QByteArray("c\0u\0b\0e\0\0\0", 10)).pad();
    MeshBytes file;
    file.u32({0xC8A07F4D}).u16(5).u16(0).u32({quint32(body.bytes().size())}).raw(body.bytes());
    file.u32({0, 0, 1, 0}).u32({0x21207DD9, 1, 0, 1});
    return file.bytes();
}

QByteArray snapshotFile()
{
    const QList<QPointF> axis{{0.5, 0.1}, {1.0, 2.5}, {1.5, 0.25}};
    FftSnapshot snapshot;
    snapshot.version = QStringLiteral("0.1.0");
    snapshot.profileHash = QStringLiteral("0a1b2c3d");
    snapshot.chartTitle = QStringLiteral("Acceleration");
    snapshot.meta = {1024, 100, 0.098, 50, QStringLiteral("Hann"), QStringLiteral("mG")};
    snapshot.dominantPeak = {true, 2, 1, 1.0, 2.5};
    snapshot.bandSummary = QStringLiteral("Low 2.50 mG");
    snapshot.alarmPreset = QStringLiteral("General");
    snapshot.alarm.summary = QStringLiteral("Normal");
    snapshot.alarmTimeline = {QStringLiteral("12:00:00 Normal")};
    for (auto &spectrum : snapshot.axes)
        spectrum = axis;
    snapshot.resultant = axis;
    snapshot.bands = {{QStringLiteral("Low"), 6.25, 2.5, true}};
    return fft_snapshot::toJson(snapshot).toUtf8();
}

} // namespace

QList<seeds::Seed> seeds::snapshot()
{
    return {
        {"snapshot", "exported", snapshotFile()},
        {"snapshot", "least", R"({"version":"1","meta":{"fftSize":256,"sampleRate":100,"windowName":"Hann"}})"},
        {"snapshot", "other_types",
         R"({"version":1,"profileHash":null,"meta":[1],"alarmPreset":{},"bandSummary":true})"},
        {"snapshot", "large_numbers", R"({"meta":{"fftSize":1e300,"sampleRate":-2147483649,"windowName":"\u0000"}})"},
        {"snapshot", "half_a_character", R"({"version":"\ud83d","alarmSummary":"\ude00\ud83d\ude00"})"},
        {"snapshot", "no_object", R"(["version"])"},
        {"snapshot", "nested", QByteArray(600, '[') + QByteArray(600, ']')},
        {"snapshot", "cut", snapshotFile().left(200)},
        {"snapshot", "table", "frequency,xAmplitude,yAmplitude,zAmplitude,resultantAmplitude\n0.5,1,2,3,4\n"},
    };
}

QList<seeds::Seed> seeds::models()
{
    return {
        {"models", "triangle.obj", "# a plate\nv 0 0 0\nv 2 0 0\nv 0 4 0\nvn 0 0 1\nf 1//1 2//1 3//1\n"},
        {"models", "square_and_fan.obj",
         "o a\ng b\nusemtl c\ns off\nv 0 0 0 1\nv 1 0 0\nv 1 1 0\nv 0 1 0\nv 0.5 2 1e0\nvt 0 0\nvn 0 0 -1\n"
         "f 1/1/1 2/1/1 3/1/1 4/1/1\nf 1 2 3 4 5\n"},
        {"models", "from_the_end.obj", "v 0 0 0\r\nv 1 0 0\r\nv 0 1 0\r\nvn 1 0 0\r\nf -3//-1 -2//-1 -1//-1\r\n"},
        {"models", "line_forms.obj",
         "\xEF\xBB\xBF# C:\\\nv 0 \\\n0 0 # one\rv 1 0 \\\r\n0\r\nv 0 1 0#\nf 1 \\\r2 3 \\"},
        {"models", "missing_corner.obj", "v 0 0 0\nv 1 0 0\nf 1 2 3\n"},
        {"models", "zero_corner.obj", "v 0 0 0\nv 1 0 0\nv 0 1 0\nf 0 1 2\n"},
        {"models", "large_numbers.obj", "v 1e9 -1e9 1e-30\nv 1e400 0 0\nv .5 -.5 +5.\nf 1 2 3\nf 1 3 2\n"},
        {"models", "other_elements.obj",
         "mtllib a.mtl\nl 1 2\np 1\nvw 1 1\nt a 1/1/1 0 0.5 x\nv 1 1 1 0.5 0.5 0.5\nvp 1\ncurv 0 1 1\n"},
        {"models", "no_number.obj", "v 0 nan 0\nv 0 x 0\nf 1 1 1\n"},
        {"models", "short_indices.mesh", meshFile(3)},
        {"models", "long_indices.mesh", meshFile(5)},
        {"models", "cut.mesh", meshFile(3).left(150)},
    };
}

QList<seeds::Seed> seeds::settings()
{
    return {
        {"settings", "usual",
         "[Main]\nFONTSIZE=10\nLANGUAGE=EN\nGEOMETRY=@ByteArray(\\x1\\xd9\\xd0\\xcb\\0\\x3\\0\\0)\n\n"
         "[SERIAL]\nPORT=/dev/ttyUSB0\nBAUDRATE=921600\nVENDOR_ID=1027\nPRODUCT_ID=24577\nSERIAL_NUMBER=A1B2\n\n"
         "[RECORD]\nPATH=/tmp/run/data.csv\n\n[UPDATER]\nPATH=/tmp/firmware.hex\n\n[THREED]\nROTATION_PRESET=1\n\n"
         "[DISPLAY_OVERRIDES]\nKV104\\orientation_preset=1\n\n"
         "[SENSOR_DASHBOARD]\nSELECTED_SENSORS=acc, gyr\nPLACE=@Rect(10 20 800 600)\nMAXIMIZED=true\n"
         "SAVE_FOLDER=/tmp\n"},
        {"settings", "out_of_range",
         "[SERIAL]\nBAUDRATE=99999999999\nVENDOR_ID=65536\nPRODUCT_ID=-1\n[DISPLAY_OVERRIDES]\n"
         "MZ221\\orientation_preset=4294967297\n[RECORD]\nPATH=relative.csv\n[Main]\nFONTSIZE=1e9\n"},
        {"settings", "other_types",
         "[SERIAL]\nPORT=@Size(1 2)\nBAUDRATE=a, b\n[RECORD]\nPATH=@Point(1 2)\n[Main]\nLANGUAGE=@Invalid()\n"
         "[SENSOR_DASHBOARD]\nPLACE=@Rect(2147483647 -2147483648 2147483647 "
         "2147483647)\nSELECTED_SENSORS=@Invalid()\n"},
        {"settings", "escapes",
         "[RECORD]\nPATH=\"/tmp/\\x65e5\\x672c/"
         "a;b.csv\"\n[SERIAL]\nPORT=\"tty\\\"A\\x1\\r\\n\"\n[%General]\n%41=\\\n1\n"},
        {"settings", "no_sections", "FONTSIZE=12\n=x\n[\n]\n[Main\nLANGUAGE\n;comment\n\xFF\xFE\n"},
        {"settings", "list_of_four_thousand_million",
         "[THREED]\nROTATION_PRESET=@Variant(\\0\\0\\0\\t\\xff\\xff\\xff\\xfe)\n"},
        {"settings", "list_of_escaped_name", "[A]\nb=a, \"@\"Var\\x10069ant\\x(\\0\\0\\0\\xb\\x7f\\xff\\xff\\xff)\n"},
        {"settings", "one_number_of_another_type", "a=@Variant(\\0\\0\\0\\x2\\0\\0\\0\\x5)\n"},
    };
}
