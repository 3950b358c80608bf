// SPDX-License-Identifier: GPL-3.0-or-later
// What the commands read and write: files, or the standard input and output where a name is "-".
#pragma once

#include <functional>
#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/files.h"

namespace korvane {

/// The name that stands for the standard input or output.
inline constexpr std::string_view kStandardStream = "-";

/// The bytes of a file, or of the standard input for "-"; nothing when it can't be read.
std::optional<std::string> ReadInput(const std::string& path, bool* notFound = nullptr);

/// Says that a file was not written, and why.
void TellNotSaved(const std::string& path, const WriteResult& result, std::ostream& errors);

/// Writes what a command has made to the file, or to output for "-". Returns the exit status; a
/// failure is told on errors.
int SaveOutput(const std::string& path, std::string_view bytes, const WriteRules& rules,
               std::ostream& output, std::ostream& errors);

/// Lets a command write its output while it makes it: to output for "-" or an empty path, else in
/// pieces into the file, which is there once all of it is. work returns false to give the file up.
WriteResult WriteAsMade(const std::string& path, const WriteRules& rules, std::ostream& output,
                        const std::function<bool(std::ostream&)>& work);

/// The lines of a list of names, without their line ends; empty ones are left out.
std::vector<std::string> NamesOfList(std::string_view bytes);

}  // namespace korvane
