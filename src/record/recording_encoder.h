#pragma once

#include <QByteArray>

#include "record/recording_reader.h"

/// Builds a packet from each line of a recording, as the device may have sent it: a recording holds numbers, and this
/// is how they take the same way as on a line. Fields that the line does not hold are 0; values that do not fit into
/// their field are at its limit, and what is not a number is 0 where the field is an integer.
namespace recording_encoder {

/// A data packet with header and check value, see KbootProtocol.
QByteArray packet(const RecordedRow &row);

} // namespace recording_encoder
