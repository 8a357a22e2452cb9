#include "attitude/mesh_file.h"

#include <QDataStream>
#include <QFile>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr qint64 kMaxFileBytes = 64 * 1024 * 1024;
constexpr quint32 kMaxParts = 64; ///< attributes or subsets
constexpr quint32 kMeshId = 0xC8A07F4D;
constexpr quint32 kDirectoryId = 0x21207DD9;
constexpr quint16 kVersion = 5;
constexpr qint64 kHeaderBytes = 12;
constexpr qint64 kDirectoryBytes = 32;
constexpr quint32 kIndex16 = 3;
constexpr quint32 kIndex32 = 5;
constexpr quint32 kFloat32 = 10;
constexpr quint32 kTriangles = 7;
constexpr quint32 kFloatBytes = 4;

/// Reads numbers of the file in order. After the first missing one everything is 0 and `good` is false.
class Cursor
{
public:
    explicit Cursor(const QByteArray &bytes) : m_stream(bytes)
    {
        m_stream.setByteOrder(QDataStream::LittleEndian);
        m_stream.setFloatingPointPrecision(QDataStream::SinglePrecision);
    }
    template <typename T> T next()
    {
        T value{};
        m_stream >> value;
        return value;
    }
    void skip(quint32 bytes)
    {
        if (bytes > kMaxFileBytes || m_stream.skipRawData(int(bytes)) < int(bytes))
            m_stream.setStatus(QDataStream::ReadPastEnd);
    }
    void align() { skip(4 - quint32(position() % 4)); }
    void seek(qint64 position) { m_stream.device()->seek(position); }
    qint64 position() const { return m_stream.device()->pos(); }
    bool good() const { return m_stream.status() == QDataStream::Ok; }

private:
    QDataStream m_stream;
};

struct Shape
{
    quint32 stride = 0;
    quint32 positionOffset = 0;
    quint32 vertexBytes = 0;
    quint32 indexBytes = 0;
    quint32 indexSize = 0;
    quint32 subsets = 0;
};

bool hasFrame(Cursor &cursor, qint64 fileSize)
{
    if (fileSize < kHeaderBytes + kDirectoryBytes)
        return false;
    cursor.seek(fileSize - kDirectoryBytes);
    const bool isFirst = cursor.next<quint64>() == 0;
    cursor.skip(8);
    const bool isDirectory = cursor.next<quint32>() == kDirectoryId && cursor.next<quint32>() == 1;
    cursor.skip(4);
    const bool isSingle = cursor.next<quint32>() == 1;
    cursor.seek(0);
    const bool isMesh = cursor.next<quint32>() == kMeshId && cursor.next<quint16>() == kVersion;
    cursor.skip(2);
    return isFirst && isDirectory && isSingle && isMesh
           && cursor.next<quint32>() == fileSize - kHeaderBytes - kDirectoryBytes;
}

/// The numbers describing the mesh and its attributes, up to where the vertices begin.
bool readShape(Cursor &cursor, Shape &shape)
{
    std::array<quint32, 14> numbers{};
    for (quint32 &number : numbers)
        number = cursor.next<quint32>();
    const quint32 attributes = numbers[1];
    const quint32 indexType = numbers[5];
    shape = {numbers[2], 0, numbers[4], numbers[7], indexType == kIndex16 ? 2U : 4U, numbers[9]};
    const bool isPlausible = attributes > 0 && attributes <= kMaxParts && shape.stride >= 3 * kFloatBytes
                             && shape.stride % kFloatBytes == 0 && shape.vertexBytes % shape.stride == 0
                             && (indexType == kIndex16 || indexType == kIndex32)
                             && shape.indexBytes % shape.indexSize == 0 && shape.subsets > 0
                             && shape.subsets <= kMaxParts && numbers[11] == 0 && numbers[12] == kTriangles;
    if (!isPlausible || !cursor.good())
        return false;

    std::array<quint32, kMaxParts> offsets{};
    for (quint32 i = 0; i < attributes; ++i) {
        cursor.skip(4);
        const auto type = cursor.next<quint32>();
        const auto components = cursor.next<quint32>();
        offsets[i] = cursor.next<quint32>();
        if (type != kFloat32 || components > 4 || offsets[i] > shape.stride
            || offsets[i] + components * kFloatBytes > shape.stride)
            return false;
    }
    cursor.align();
    bool hasPosition = false;
    for (quint32 i = 0; i < attributes && cursor.good(); ++i) {
        const auto length = cursor.next<quint32>();
        constexpr quint32 kLongestName = 64;
        if (length > kLongestName)
            return false;
        QByteArray name;
        for (quint32 k = 0; k < length; ++k)
            name.append(char(cursor.next<quint8>()));
        if (name == QByteArray("attr_pos", 9)) {
            hasPosition = offsets[i] + 3 * kFloatBytes <= shape.stride;
            shape.positionOffset = offsets[i];
        }
        cursor.align();
    }
    return hasPosition && cursor.good();
}

bool readBox(Cursor &cursor, const Shape &shape, QVector3D &minimum, QVector3D &maximum)
{
    const quint32 vertices = shape.vertexBytes / shape.stride;
    for (quint32 i = 0; i < vertices && cursor.good(); ++i) {
        cursor.skip(shape.positionOffset);
        for (int axis = 0; axis < 3; ++axis) {
            const auto value = cursor.next<float>();
            if (!std::isfinite(value))
                return false;
            minimum[axis] = i == 0 ? value : std::min(minimum[axis], value);
            maximum[axis] = i == 0 ? value : std::max(maximum[axis], value);
        }
        cursor.skip(shape.stride - shape.positionOffset - 3 * kFloatBytes);
    }
    cursor.align();
    return vertices > 0 && cursor.good();
}

bool hasSoundIndices(Cursor &cursor, const Shape &shape)
{
    const quint32 indices = shape.indexBytes / shape.indexSize;
    const quint32 vertices = shape.vertexBytes / shape.stride;
    for (quint32 i = 0; i < indices; ++i) {
        if ((shape.indexSize == 2 ? cursor.next<quint16>() : cursor.next<quint32>()) >= vertices)
            return false;
    }
    cursor.align();
    std::array<quint32, kMaxParts> names{};
    for (quint32 i = 0; i < shape.subsets; ++i) {
        const auto count = cursor.next<quint32>();
        const auto first = cursor.next<quint32>();
        if (first > indices || count > indices - first)
            return false;
        cursor.skip(28); // the box, and the offset of the name
        names[i] = cursor.next<quint32>();
        cursor.skip(8);
    }
    cursor.align();
    for (quint32 i = 0; i < shape.subsets; ++i) {
        if (names[i] > kMaxFileBytes / 4)
            return false;
        cursor.skip(names[i] * 2);
        cursor.align();
    }
    return cursor.good();
}

} // namespace

void MeshFile::setSource(const QUrl &source)
{
    if (source == m_source)
        return;
    m_source = source;
    m_error = source.isEmpty() ? QString() : check(source.toLocalFile());
    emit sourceChanged();
}

QString MeshFile::check(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return tr("The mesh file cannot be read: %1").arg(file.errorString());
    const qint64 size = file.size();
    if (size > kMaxFileBytes)
        return tr("The mesh file is larger than %1 MiB.").arg(kMaxFileBytes >> 20);
    const QByteArray bytes = file.read(size);
    Cursor cursor(bytes);
    Shape shape;
    const bool isSound = hasFrame(cursor, bytes.size()) && readShape(cursor, shape)
                         && readBox(cursor, shape, m_minimum, m_maximum) && hasSoundIndices(cursor, shape)
                         && cursor.position() <= bytes.size() - kDirectoryBytes;
    return isSound ? QString() : tr("The mesh file is damaged, or of an unsupported kind.");
}
