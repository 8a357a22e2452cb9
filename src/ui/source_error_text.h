#pragma once

#include <QString>

struct SourceFailure;

/// Explains why a source could not be opened, or why it was lost, and what to do about it.
namespace source_error_text {

/// Sentences without a title, plain text; may contain words of the other end. Empty when nothing failed.
QString describe(const SourceFailure &failure);

} // namespace source_error_text
