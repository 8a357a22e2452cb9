#include "attitude/qt6_model_asset.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace {

struct Sample
{
    QLatin1String fileName;
    QLatin1String scene;
};

constexpr std::array kSamples{
    Sample{QLatin1String("jet.obj"), QLatin1String("qrc:/modelscenes/jet/Jet.qml")},
    Sample{QLatin1String("cube.obj"), QLatin1String("qrc:/modelscenes/cube/Cube.qml")},
    Sample{QLatin1String("plane.obj"), QLatin1String("qrc:/modelscenes/plane/Plane.qml")},
    Sample{QLatin1String("spaceship.obj"), QLatin1String("qrc:/modelscenes/spaceship/Spaceship.qml")},
};

constexpr std::array kSamplePlaces{
    QLatin1String("objModel/%1"),
    QLatin1String("../objModel/%1"),
    QLatin1String("../../objModel/%1"),
    QLatin1String("KVCenter/objModel/%1"),
    QLatin1String("../KVCenter/objModel/%1"),
    QLatin1String("../../KVCenter/objModel/%1"),
    QLatin1String("../../../KVCenter/objModel/%1"),
};

QUrl failed(QString *error, const char *text)
{
    if (error)
        *error = QCoreApplication::translate("Qt6ModelAsset", text);
    return {};
}

} // namespace

QString Qt6ModelAsset::builtInScene(const QString &fileName)
{
    for (const Sample &sample : kSamples) {
        if (fileName.toLower() == sample.fileName)
            return sample.scene;
    }
    return {};
}

QString Qt6ModelAsset::defaultBundledObjFilePath(const QString &fileName)
{
    for (const QLatin1String place : kSamplePlaces) {
        QString path = QString(place).arg(fileName);
        if (QFileInfo::exists(path))
            return path;
    }
    return {};
}

bool Qt6ModelAsset::isBundledObjSampleFile(const QFileInfo &file)
{
    if (!file.isFile() || builtInScene(file.fileName()).isEmpty())
        return false;
    const QString path = file.canonicalFilePath();
    return std::any_of(kSamplePlaces.begin(), kSamplePlaces.end(), [&](QLatin1String place) {
        return QFileInfo(QString(place).arg(file.fileName())).canonicalFilePath() == path;
    });
}

QUrl Qt6ModelAsset::resolveModelSource(const QString &path, QString *error)
{
    if (error)
        error->clear();
    if (path.isEmpty())
        return failed(error, QT_TRANSLATE_NOOP("Qt6ModelAsset", "No 3D asset was selected."));
    if (path.startsWith(QLatin1String("qrc:")))
        return QUrl(path);

    const QFileInfo file(path);
    const QString suffix = file.suffix().toLower();
    if (suffix == QLatin1String("mesh")) {
        if (!file.isFile())
            return failed(error, QT_TRANSLATE_NOOP("Qt6ModelAsset", "The selected mesh file could not be found."));
    } else if (suffix == QLatin1String("obj")) {
        if (isBundledObjSampleFile(file))
            return QUrl(builtInScene(file.fileName()));
        if (!file.isFile())
            return failed(error, QT_TRANSLATE_NOOP("Qt6ModelAsset", "The selected OBJ file could not be found."));
    } else {
        return failed(error, QT_TRANSLATE_NOOP("Qt6ModelAsset", "Unsupported 3D asset. Choose a bundled .obj model, an "
                                                                "external .obj file, or a preconverted .mesh file."));
    }
    return QUrl::fromLocalFile(file.absoluteFilePath());
}
