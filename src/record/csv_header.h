#pragma once

#include <QByteArray>

/// The header lines of recordings, which CsvWriter describes. Each ends with LF.
namespace csv_header {

constexpr int kMotionColumns = 16; ///< of a single module, and of a node after its id
constexpr int kGroups = 16;        ///< of columns in a gateway's line
constexpr int kGroupColumns = 1 + kMotionColumns;
constexpr int kColumns91 = 4 + kMotionColumns;
constexpr int kColumns62 = 1 + kGroups * kGroupColumns;
constexpr int kColumns63 = 2 + kGroups * kGroupColumns;

QByteArray line91();
QByteArray line62();
QByteArray line63();

} // namespace csv_header
