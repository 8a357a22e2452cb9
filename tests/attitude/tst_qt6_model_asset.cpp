#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

#include "attitude/mesh_file.h"
#include "attitude/obj_reader.h"
#include "attitude/qt6_model_asset.h"
#include "support/files.h"

namespace {

constexpr auto kTriangle = "v 0 0 0\nv 2 0 0\nv 0 4 0\n";

} // namespace

class TestModelFiles : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;
    QString m_before = QDir::currentPath();

    QString write(const QString &name, const QByteArray &bytes)
    {
        const QString path = m_folder.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        return writeFile(path, bytes) ? path : QString();
    }

private slots:
    void initTestCase()
    {
        for (const char *name : {"work/objModel/jet.obj", "work/objModel/CUBE.Obj", "objModel/plane.obj",
                                 "KVCenter/objModel/spaceship.obj", "elsewhere/jet.obj", "work/other.OBJ",
                                 "work/part.mesh", "work/part.stl", "work/objModel/other.obj"})
            QVERIFY(!write(QLatin1String(name), kTriangle).isEmpty());
        QVERIFY(QDir().mkpath(m_folder.filePath(QStringLiteral("work/folder.obj"))));
        QVERIFY(QDir::setCurrent(m_folder.filePath(QStringLiteral("work"))));
    }
    void cleanupTestCase() { QDir::setCurrent(m_before); }

    void resolving()
    {
        struct Row
        {
            const char *path;
            const char *source; // "file": the file itself
            const char *error = "";
        };
        const Row rows[] = {{"", "", "No 3D asset was selected."},
                            {"qrc:/any/Thing.qml", "qrc:/any/Thing.qml"},
                            {"objModel/jet.obj", "qrc:/modelscenes/jet/Jet.qml"},
                            {"objModel/CUBE.Obj", "qrc:/modelscenes/cube/Cube.qml"},
                            {"../objModel/plane.obj", "qrc:/modelscenes/plane/Plane.qml"},
                            {"../KVCenter/objModel/spaceship.obj", "qrc:/modelscenes/spaceship/Spaceship.qml"},
                            {"../work/objModel/../objModel/jet.obj", "qrc:/modelscenes/jet/Jet.qml"},
                            {"../elsewhere/jet.obj", "file"},
                            {"objModel/other.obj", "file"},
                            {"other.OBJ", "file"},
                            {"part.mesh", "file"},
                            {"gone.mesh", "", "The selected mesh file could not be found."},
                            {"gone.obj", "", "The selected OBJ file could not be found."},
                            {"folder.obj", "", "The selected OBJ file could not be found."},
                            {"part.stl", "",
                             "Unsupported 3D asset. Choose a bundled .obj model, an external .obj file, or a "
                             "preconverted .mesh file."}};
        for (const auto &[name, source, message] : rows) {
            const auto path = QString::fromLatin1(name);
            const QUrl expected = qstrcmp(source, "file") == 0 ? QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath())
                                                               : QUrl(QString::fromLatin1(source));
            QString error = QStringLiteral("old");
            QCOMPARE(Qt6ModelAsset::resolveModelSource(path, &error), expected);
            QCOMPARE(error, QLatin1String(message));
            QCOMPARE(Qt6ModelAsset::resolveModelSource(path, nullptr), expected);
        }
    }
    void defaultPathIsTheFirstThatExists()
    {
        const auto path = [](const char *name) {
            return Qt6ModelAsset::defaultBundledObjFilePath(QLatin1String(name));
        };
        QCOMPARE(path("jet.obj"), QStringLiteral("objModel/jet.obj"));
        QCOMPARE(path("plane.obj"), QStringLiteral("../objModel/plane.obj"));
        QCOMPARE(path("gone.obj"), QString());
    }

    void obj()
    {
        struct Row
        {
            const char *name;
            QByteArray text;
            int triangles;         // 0: refused
            const char *word = ""; // of the sentence
        };
        const QByteArray points = kTriangle;
        const QByteArray many = QByteArray("f 1 2 3\n").repeated(1'000'001);
        const Row rows[] = {
            {"triangle", points + "f 1 2 3\n", 1},
            {"quad with everything", points + "v 2 4 0\nvt 0 0\nvn 0 0 1\nf 1/1/1 2/1/1 4/1/1 3/1/1\n", 2},
            {"from the newest", points + "f -3 -2 -1", 1},
            {"lines of Windows", "v 0 0 0\r\nv 2 0 0\r\nv 0 4 0\r\nf 1 2 3\r\n", 1},
            {"lines of old Macs", "v 0 0 0\rv 2 0 0\rv 0 4 0\rf 1 2 3\r", 1},
            {"byte order mark", "\xEF\xBB\xBF" + points + "f 1 2 3\n", 1},
            {"comments behind", "v 0 0 0# a\nv 2 0 0 # b\nv 0 4 0 #\nf 1 2 3 # c v 9\n", 1},
            {"continued", "v 0 \\\n0 0\nv 2 0 0\nv 0 4 \\\r\n 0\nf 1 \\\r2 \\\n3\n", 1},
            {"comment like a folder", "# C:\\models\\\n" + points + "f 1 2 3 # D:\\\n", 1},
            {"bad behind a continued line", "v 0 \\\n0 0\nv 0 \\\n0 x\n", 0, "Line 3 "},
            {"bad behind a mark", "\xEF\xBB\xBFv 0 0 x\n", 0, "Line 1 "},
            {"nothing but a mark", "\xEF\xBB\xBF", 0, "no faces"},
            {"only continued", QByteArray("\\\n").repeated(1000), 0, "no faces"},
            {"normals that are none", points + "vn 0 0 0\nvn 1e30 nan x\nf 1//1 2//2 3//9\n", 1},
            {"unknown words", "o a\ng\ns off\nusemtl x\nmtllib /dev/zero\ncurv 0 1\nl 1 2\n" + points + "f 1 2 3\n", 1},
            {"empty", "", 0, "no faces"},
            {"no faces", points, 0, "no faces"},
            {"without area", points + "f 1 1 2\nf 1 2\nf\n", 0, "no faces"},
            {"cut off", points + "f 1 2 3\nf 1 2 ", 1},
            {"cut off in a vertex", "v 1 2 3\nv 1 2", 0, "no faces"},
            {"vertex that is not there", points + "f 1 2 4\n", 0, "does not exist"},
            {"vertex 0", points + "f 0 1 2\n", 0, "does not exist"},
            {"before the first", points + "f -4 -2 -1\n", 0, "does not exist"},
            {"huge index", points + "f 1 2 2147483647\n", 0, "does not exist"},
            {"words for indices", points + "f a b/c //\n", 0, "does not exist"},
            {"NaN", "v nan 0 0\nv 1 0 0\nv 0 1 0\nf 1 2 3\n", 0, "Line 1 "},
            {"infinity", "v 0 0 0\nv inf 0 0\nv 0 1 0\nf 1 2 3\n", 0, "Line 2 "},
            {"too large", "v 1e38 0 0\nv 1e999 0 0\nv 0 1 0\nf 1 2 3\n", 0, "too large"},
            {"binary", QByteArray("v \0\1\2", 5), 0, "no text"},
            {"noise", QByteArray(5000, '\xF3') + '\n' + QByteArray(5000, '/') + "\nf " + QByteArray(5000, '/'), 0, ""},
            {"a million faces and one", points + many, 0, "1000000"},
            {"one face of a million", points + "f" + QByteArray(" 1 2 3").repeated(400'000) + '\n', 0, "1000000"}};
        for (const auto &[name, text, triangles, word] : rows) {
            QString error;
            const auto mesh = ObjReader::read(write(QStringLiteral("模型 ü/a.obj"), text), &error);
            QVERIFY2(mesh.has_value() == (triangles > 0) && error.isEmpty() == (triangles > 0), name);
            QVERIFY2(error.contains(QLatin1String(word)), name);
            if (!mesh)
                continue;
            QVERIFY2(mesh->vertices.size() == triangles * 3 * TriangleMesh::kStride, name);
            QVERIFY2(mesh->minimum == QVector3D(0, 0, 0) && mesh->maximum == QVector3D(2, 4, 0), name);
            const auto *floats = reinterpret_cast<const float *>(mesh->vertices.constData());
            QVERIFY2(QVector3D(floats[3], floats[4], floats[5]) == QVector3D(0, 0, 1), name);
        }
    }

    void meshesAreCheckedBeforeTheyAreShown()
    {
        const QByteArray good = readFile(QStringLiteral(":/modelscenes/cube/meshes/face_up.mesh"));
        const auto errorOf = [this](const QByteArray &bytes) {
            MeshFile file;
            file.setSource(QUrl::fromLocalFile(write(QStringLiteral("模型/a.mesh"), bytes)));
            return file.error();
        };
        QCOMPARE(errorOf(good), QString());
        MeshFile file;
        file.setSource(QUrl::fromLocalFile(m_folder.filePath(QStringLiteral("模型/a.mesh"))));
        QCOMPARE(file.minimum(), QVector3D(-27, 30, -27));
        QCOMPARE(file.maximum(), QVector3D(27, 30, 27));

        for (qsizetype size = 0; size < good.size(); ++size)
            QVERIFY2(!errorOf(good.first(size)).isEmpty(), qPrintable(QString::number(size)));
        QVERIFY(!errorOf(good + good).isEmpty());
        // Numbers that the renderer would trust: identity, sizes, offsets, counts, the first index, the directory.
        for (const int offset : {0,    4,    8,    0x10, 0x14,  0x1C,  0x20,  0x28,  0x30,  0x38,  0x3C, 0x48,
                                 0x4C, 0x50, 0x68, 0xEC, 0x108, 0x10C, 0x12C, 0x150, 0x160, 0x164, 0x16C}) {
            for (const quint32 value : {0xFFFFFFFFU, 0x7FFFFFFFU, 0x7FC00000U, 0x10000U}) {
                QByteArray bad = good;
                qToLittleEndian(value, bad.data() + offset);
                QVERIFY2(!errorOf(bad).isEmpty(), qPrintable(QStringLiteral("%1: %2").arg(offset).arg(value)));
            }
        }
        QByteArray oneTooFar = good;
        qToLittleEndian(4U, oneTooFar.data() + 0xEC); // the face has four vertices
        QVERIFY(!errorOf(oneTooFar).isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestModelFiles)
#include "tst_qt6_model_asset.moc"
