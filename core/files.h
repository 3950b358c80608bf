// SPDX-License-Identifier: GPL-3.0-or-later
// Whole files in and out. Everything that the program writes goes through WriteFile, which leaves
// the new file or the old one, never a part of either.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace korvane {

/// What came of writing a file.
enum class WriteStatus {
  Ok,
  BadName,     ///< empty, with a zero byte, ending in a slash, too long, a link onto itself
  NoFolder,    ///< the folder is missing
  IsFolder,    ///< a folder has this name
  NotAFile,    ///< a device, a pipe or a socket has this name
  IsInput,     ///< the same command reads this file
  ReadOnly,    ///< the file is write-protected
  InUse,       ///< another program holds the file; only some systems know this
  NotAllowed,  ///< the folder or the disk may not be written to
  DiskFull,    ///< no room, or beyond a limit on sizes
  GivenUp,     ///< whoever made the content has given it up
  Failed,      ///< anything else
};

/// How a file was written. Unless status is Ok the old file stands as it was, or there is still
/// none; where even that could not be kept, why tells where the old content is.
struct WriteResult {
  WriteStatus status = WriteStatus::Ok;
  std::string why;  ///< a sentence for the engineer; empty when it was written
  explicit operator bool() const { return status == WriteStatus::Ok; }
};

/// What a writing has to respect.
struct WriteRules {
  std::vector<std::string> inputs;  ///< files that the same command reads: never written to
};

/// The bytes of a regular file, or nothing when it can't be read (notFound tells whether it is
/// missing).
std::optional<std::string> ReadWholeFile(const std::string& path, bool* notFound = nullptr);

/// Writes the bytes to a temporary file beside path, flushes it to the disk, renames it over path
/// and flushes the folder. A symbolic link is followed and stays. Owner, mode, access list and
/// extended attributes of the old file are kept; at no moment may anybody read more than before.
/// A file with several names, or whose owner or access can't be given to a new one, is written in
/// place, after its content was flushed to a copy beside it that is removed at the end, and from
/// which it is restored after a failure. Temporary files of killed processes in the folder are
/// removed after a day. On Windows the names of devices are refused in every folder.
WriteResult WriteFile(const std::string& path, std::string_view bytes,
                      const WriteRules& rules = {});

/// Takes a piece of a content; false once the disk has not taken one.
using PieceTaker = std::function<bool(std::string_view)>;

/// The same with a content that is made in pieces and never stands in memory: make hands them on
/// one behind the other, and returns false to give the file up. The pieces go into a temporary file
/// beside path; where one has to be written in place, it is copied from there at the end.
WriteResult WriteFileInPieces(const std::string& path,
                              const std::function<bool(const PieceTaker&)>& make,
                              const WriteRules& rules = {});

/// What WriteFile would refuse before it writes: for a work that takes long before its table is
/// written.
WriteResult CheckWritable(const std::string& path, const WriteRules& rules = {});

/// The result of a status, with its sentence.
WriteResult ResultOf(WriteStatus status);

/// The name of a file that is being written, from 64 random bits.
std::string TemporaryName(unsigned long long random);
/// Whether a name is one that TemporaryName makes.
bool IsTemporaryName(std::string_view name);

}  // namespace korvane
