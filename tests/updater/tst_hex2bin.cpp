#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include "support/files.h"
#include "support/hex_file.h"
#include "support/real_firmware.h"
#include "updater/hex2bin.h"

namespace {

constexpr unsigned int kNone = 0xFFFFFFFF;
const char *const kEnd = ":00000001FF\r\n";

using hex_file::record;

QByteArray data(quint16 address, const QByteArray &bytes)
{
    return record(0, address, bytes);
}

QByteArray convert(const QByteArray &file)
{
    QTextStream in(file);
    return hex2bin::convert(in);
}

/// Lines of the application log since the last call.
QByteArray logged()
{
    const QByteArray lines = readFile(QStringLiteral("debug.log"));
    QFile::remove(QStringLiteral("debug.log"));
    return lines;
}

} // namespace

class TestHex2Bin : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(QDir::setCurrent(m_folder.path()));
        // The load address is the first one of the run, apart from previews and failures; so this comes first.
        QCOMPARE(hex2bin::start_addr(), kNone);
        QCOMPARE(convert(kEnd), QByteArray());
        QTextStream looked(QByteArray(":020000040800F2\n") + data(0x20, "abcd"));
        QCOMPARE(hex2bin::preview(looked), QByteArray("abcd"));
        QCOMPARE(hex2bin::first_data_addr(), 0x08000020U);
        QCOMPARE(hex2bin::start_addr(), kNone);
        QCOMPARE(convert(QByteArray(":020000040800F2\n") + data(0, "abcd")), QByteArray("abcd"));
        QCOMPARE(hex2bin::start_addr(), 0x08000000U);
    }
    void init() { logged(); }

    void images()
    {
        // The file, its image, the image's address, and how many bytes were skipped.
        const QByteArray sixteen = "0123456789ABCDEF";
        const std::tuple<const char *, QByteArray, QByteArray, unsigned int, int> rows[] = {
            {"linear address", ":020000041000EA\n" + data(0xC0, "ab"), "ab", 0x100000C0U, 0},
            {"segment address, padded", ":02000002100000EC\n" + data(8, "ab"), "ab", 0x4008U, 0},
            {"segment address", record(2, 0, QByteArray("\x10\0", 2)) + data(8, "ab"), "ab", 0x4008U, 0},
            {"segment after linear", ":020000040800F2\n:02000002100000EC\n" + data(0, "ab"), "ab", 0x4000U, 0},
            {"linear after segment", ":02000002100000EC\n:020000040800F2\n" + data(0, "ab"), "ab", 0x08000000U, 0},
            {"gap", data(0, sixteen) + data(0x20, sixteen) + kEnd, sixteen + QByteArray(16, '0') + sixteen, 0U, 16},
            {"across a 64 KiB boundary", data(0xFFFE, "ab") + ":020000040001F9\n" + data(0, "cd"), "abcd", 0xFFFEU, 0},
            {"no end record", data(4, "ab"), "ab", 4U, 0},
            {"no line end", data(4, "ab").trimmed(), "ab", 4U, 0},
            {"lower case, byte-order mark", "\xEF\xBB\xBF" + data(4, "\xAB\xCD").toLower(), QByteArray("\xAB\xCD"), 4U,
             0},
            {"blank line ends", data(4, "ab") + "\r\n" + data(6, "cd"), "ab", 4U, 0},
            {"words end", data(4, "ab") + "xyz --\n" + data(6, "cd"), "ab", 4U, 0},
            {"start address ends", data(4, "ab") + record(5, 0, "abcd") + data(6, "cd"), "ab", 4U, 0},
            {"255 bytes", data(0, QByteArray(255, 'x')) + data(255, "y"), QByteArray(255, 'x') + "y", 0U, 0},
            {"the very last byte", ":02000004FFFFFC\n" + data(0xFFF0, sixteen), sixteen, 0xFFFFFFF0U, 0},
            {"no bytes", data(4, {}) + data(4, "ab"), "ab", 4U, 0},
            {"empty", {}, {}, kNone, 0}};
        for (const auto &[name, file, image, address, skipped] : rows) {
            QVERIFY2(convert(file) == image && hex2bin::first_data_addr() == address, name);
            const QByteArray log = logged();
            QVERIFY2(log.count('\n') == (skipped > 0 ? 1 : 0), name);
            QVERIFY2(skipped == 0 || log.contains("hex2bin, Bytesskipped=" + QByteArray::number(skipped) + "\r\n"),
                     name);
            QCOMPARE(hex2bin::start_addr(), 0x08000000U);
        }
    }

    void cutFiles()
    {
        using hex2bin::Cut;
        const QByteArray good = data(4, "ab");
        const QByteArray start = record(5, 0, "abcd");
        const std::tuple<const char *, QByteArray, Cut> rows[] = {
            {"whole", good + kEnd, Cut::None},
            {"whole, with a start address", good + start + kEnd, Cut::None},
            {"whole, blank lines at its end", good + kEnd + "\r\n\r\n", Cut::None},
            {"blank line before the end record", good + "\r\n" + kEnd, Cut::None},
            {"half of it", good, Cut::NoEndRecord},
            {"cut after the start address", good + start, Cut::NoEndRecord},
            {"cut at blank lines", good + "\n\n\n", Cut::NoEndRecord},
            {"blank line inside", good + "\r\n" + data(6, "cd") + kEnd, Cut::BlankLineInside},
            {"start address inside", good + start + data(6, "cd") + kEnd, Cut::OtherRecordInside},
            {"two files in one", good + kEnd + data(6, "cd") + kEnd, Cut::DataAfterEnd},
            {"words after the end", good + kEnd + "made by hand\n", Cut::None}};
        for (const auto &[name, file, cut] : rows) {
            convert(file);
            QVERIFY2(hex2bin::cut() == cut, name);
        }
    }

    void refused()
    {
        const QByteArray good = data(0, "abcd");
        const QByteArray failed = "hex2bin, read_hex_line failed\r\n";
        const std::tuple<QByteArray, QByteArray> rows[] = {
            {good + ":1\n", failed},                           // one digit
            {good + ":10000400616263\n", failed},              // count beyond the line
            {good + data(4, "ab").trimmed() + "00\n", failed}, // line beyond the count
            {good + data(4, "ab").replace("61", "62"), failed},
            {QByteArray("\x7F"
                        "ELF\x02\x01\0\0\xFF",
                        9),
             failed},
            {QByteArray(100000, '\0'), failed}, // no line ends
            {record(4, 0, "x") + good, "hex2bin, address record without an address"},
            {data(8, "abcd") + good, "hex2bin, records run backwards: 0x00000000"},
            {good + data(3, "ab"), "backwards: 0x00000003 after 0x00000004"},
            {good + ":020000041000EA\n" + data(0x10C0, "ab"), "image too large at 0x100010c0, gap=268439740"},
            {record(4, 0, "\xFF\xFF") + data(0xFFFE, "abc"), "hex2bin, record beyond the address space"},
            {record(4, 0, "\xFF\xFF") + data(0xFFFF, "a"), "hex2bin, record beyond the address space"},
            {record(4, 0, "\xFF\xFF") + data(0xFFFE, "ab") + record(4, 0, QByteArray(2, '\0')) + data(0, "c"),
             "records run backwards"}};
        for (const auto &[file, line] : rows) {
            QVERIFY2(convert(file).isEmpty(), file);
            QVERIFY2(logged().contains(line), file);
        }
    }

    void anythingIsSurvived()
    {
        QRandomGenerator random(7);
        for (int round = 0; round < 3000; ++round) {
            QByteArray file;
            for (int i = 0; i < 8; ++i) {
                const QByteArray bytes(int(random.bounded(20)), char(random.bounded(256)));
                file += record(quint8(random.bounded(6)), quint16(random.generate()), bytes);
                if (random.bounded(4) == 0)
                    file[random.bounded(int(file.size()))] = char(random.bounded(256));
            }
            QVERIFY(convert(file).size() <= hex2bin::kMaxImageSize);
            if (round % 100 == 0)
                logged();
        }
    }

    void gapsOfALargeFileDoNotFloodTheLog()
    {
        QByteArray file;
        for (int i = 0; i < 0xFFFF; i += 2)
            file += data(quint16(i), "a");
        QCOMPARE(convert(file).size(), 0xFFFF);
        QCOMPARE(logged().count('\n'), 1000);
    }

    // Compared with another program's conversion of real firmware, where both follow the same rules.
    void realFirmware()
    {
        if (real_firmware::path().isEmpty())
            QSKIP(real_firmware::kMissing);
        const std::tuple<QByteArray, const char *> rows[] = {
            {"", "-Output_Block_Size 7"}, {"", "-Output_Block_Size 255"}, {"-exclude 0x1001 0x1FF0", ""}};
        for (const auto &[cut, format] : rows) {
            const QByteArray file = real_firmware::convert(cut + ' ' + format, "-intel");
            QTextStream in(file);
            const QByteArray size = QByteArray::number(hex2bin::preview(in).size());
            const QByteArray expected = real_firmware::convert(cut + " -fill 0x30 0 " + size, "-binary");
            QVERIFY(expected.size() > 100000);
            QCOMPARE(convert(file), expected);
        }
        logged();
        // The whole file has records that configure the chip, far after the program.
        QCOMPARE(convert(readFile(real_firmware::path())), QByteArray());
        QVERIFY(logged().contains("hex2bin, image too large at 0x100010c0"));
    }

private:
    QTemporaryDir m_folder; ///< for the application log
};

QTEST_GUILESS_MAIN(TestHex2Bin)
#include "tst_hex2bin.moc"
