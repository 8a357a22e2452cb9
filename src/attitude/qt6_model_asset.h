#pragma once

#include <QFileInfo>
#include <QString>
#include <QUrl>

/// Which model the 3D view shows for a path that the user chose. Relative paths start at the working folder.
///
/// Sample models are the files "jet.obj", "cube.obj", "plane.obj" and "spaceship.obj" (in any letter case) in a folder
/// "objModel" in or near the working folder. They represent scenes that are built into the program.
namespace Qt6ModelAsset {

/// Source for the scene: "qrc:" paths as they are, a built-in scene for a sample model, the file itself for other .obj
/// and for .mesh files. On failure an empty URL, with a sentence for the user in `error` (may be null).
QUrl resolveModelSource(const QString &path, QString *error);

/// `file` is one of the sample models: its name and location count, not its content.
bool isBundledObjSampleFile(const QFileInfo &file);

/// Path of a sample model: the first place where a file of this name exists; empty when there is none.
QString defaultBundledObjFilePath(const QString &fileName);

/// The built-in scene for a sample model's name, in any letter case; empty for any other name.
QString builtInScene(const QString &fileName);

} // namespace Qt6ModelAsset
