#pragma once

#include <QByteArray>
#include <QTextStream>

/// Loader of firmware images in Intel HEX: text lines of hexadecimal digits after a colon, in bytes
///
///     offset  width  field
///     0       1      n, number of data bytes
///     1       2      address, big-endian
///     3       1      type: 0 data, 1 end of file, 2 segment address, 4 upper 16 bits of the address
///     4       n      data
///     4 + n   1      two's complement of the sum of all bytes before
///
/// The state is global, not part of an object: main thread only.
namespace hex2bin {

/// Largest image, gaps included, in bytes.
constexpr qint64 kMaxImageSize = qint64(64) * 1024 * 1024;

/// Converts a file into one contiguous image. Characters that are not hexadecimal digits are skipped; a line without
/// any, the end of the input and every record of a type other than 0, 2 and 4 end the conversion. Gaps are filled with
/// the character "0". A segment address counts four bytes per unit.
///
/// Empty, with a line in the application log, when a checksum is wrong, a line is shorter than its record, records run
/// backwards or beyond 32 bits, or the image would be larger than kMaxImageSize.
QByteArray convert(QTextStream &in);

/// Load address of the first image that this run of the program converted, used for all images; 0xFFFFFFFF before that.
unsigned int start_addr();

/// The same conversion for display only: start_addr() is unchanged.
QByteArray preview(QTextStream &in);

/// Address of the first data record in the last conversion or preview; 0xFFFFFFFF if there is none.
unsigned int first_data_addr();

/// Why the last conversion or preview may hold less than the file's author intended.
enum class Cut {
    None,
    NoEndRecord,       ///< the file ends without an end record: part of it may be missing
    BlankLineInside,   ///< data follow a line without digits, where the image ends
    OtherRecordInside, ///< data follow a start address or an unknown record, where the image ends
    DataAfterEnd       ///< data follow the end record
};
Cut cut();

} // namespace hex2bin
