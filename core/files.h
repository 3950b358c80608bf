// SPDX-License-Identifier: GPL-3.0-or-later
// Whole files in and out; writing never leaves a half-written file behind.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace korvane {

/// The bytes of a regular file, or nothing when it can't be read (notFound tells whether it is
/// missing).
std::optional<std::string> ReadWholeFile(const std::string& path, bool* notFound = nullptr);

/// Writes the bytes to a temporary file beside path, flushes it to the disk and renames it over
/// path. On any failure the old file stays as it was, the temporary file is removed and false
/// is returned; notFound tells whether the folder is missing.
bool WriteFileAtomically(const std::string& path, std::string_view bytes, bool* notFound = nullptr);

}  // namespace korvane
