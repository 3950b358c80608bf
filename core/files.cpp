// SPDX-License-Identifier: GPL-3.0-or-later
// Reading and atomic writing on the operating system's file calls: the standard library can't
// flush a file to the disk.
#include "core/files.h"

#include <fcntl.h>
#include <sys/random.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <utility>

namespace korvane {
namespace {

// Far beyond any file of ours; keeps a huge file from eating the memory.
constexpr std::size_t kLargestFile = std::size_t{256} << 20U;

class Descriptor {
public:
  explicit Descriptor(int fd) : fd_(fd) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  Descriptor(Descriptor&& other) noexcept : fd_(std::exchange(other.fd_, -1)) {}
  Descriptor& operator=(Descriptor&&) = delete;
  ~Descriptor() { Close(); }
  explicit operator bool() const { return fd_ >= 0; }
  int Get() const { return fd_; }
  bool Close() {
    const int fd = std::exchange(fd_, -1);
    return fd < 0 || ::close(fd) == 0;
  }

private:
  int fd_;
};

// The file that is being written; removed unless it has been renamed.
class TemporaryFile {
public:
  explicit TemporaryFile(std::string path) : path_(std::move(path)) {}
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile() {
    if (!path_.empty()) ::unlink(path_.c_str());
  }
  bool RenameTo(const std::string& target) {
    if (std::rename(path_.c_str(), target.c_str()) != 0) return false;
    path_.clear();
    return true;
  }

private:
  std::string path_;
};

bool IsMissing(int error) {
  return error == ENOENT || error == ENOTDIR;
}

void Tell(bool* flag, bool value) {
  if (flag != nullptr) *flag = value;
}

// The operating system would take such a path for the part before the zero byte.
bool HoldsZeroByte(const std::string& path) {
  return path.find('\0') != std::string::npos;
}

bool ReadAll(int fd, std::size_t expected, std::string& bytes) {
  std::size_t size = 0;
  bytes.resize(expected + 1);
  for (;;) {
    const ssize_t n = ::read(fd, bytes.data() + size, bytes.size() - size);
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) return false;
    if (n == 0) break;
    size += static_cast<std::size_t>(n);
    if (size > kLargestFile) return false;
    if (size == bytes.size()) bytes.resize(size * 2);
  }
  bytes.resize(size);
  return true;
}

bool WriteAll(int fd, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t n = ::write(fd, bytes.data(), bytes.size());
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(n));
  }
  return true;
}

// The folder of a path with its slash; empty for a bare file name.
std::string FolderOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  return slash == std::string::npos ? std::string() : path.substr(0, slash + 1);
}

// Follows a symbolic link to the file it stands for, which may not exist yet: the link stays.
std::optional<std::string> FollowLinks(std::string path) {
  constexpr int mostLinks = 40;
  for (int i = 0; i < mostLinks; ++i) {
    std::array<char, 4096> text;
    const ssize_t n = ::readlink(path.c_str(), text.data(), text.size());
    if (n < 0) return path;
    const std::string link(text.data(), static_cast<std::size_t>(n));
    path = !link.empty() && link.front() == '/' ? link : FolderOf(path).append(link);
  }
  return std::nullopt;
}

std::string TemporaryName(const std::string& folder) {
  std::uint64_t random = 0;
  if (::getrandom(&random, sizeof random, 0) != ssize_t{sizeof random}) {
    random = static_cast<std::uint64_t>(::getpid());
  }
  std::array<char, 32> name;
  std::snprintf(name.data(), name.size(), ".korvane-%016llx",
                static_cast<unsigned long long>(random));
  return folder + name.data();
}

// A new file in the folder that only this writer has; errno tells why there is none.
Descriptor CreateTemporary(const std::string& folder, std::string& path) {
  constexpr int mostTries = 16;
  for (int i = 0; i < mostTries; ++i) {
    path = TemporaryName(folder);
    const int fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (fd >= 0 || errno != EEXIST) return Descriptor(fd);
  }
  return Descriptor(-1);
}

// Owner and mode of the old file; only the mode has to succeed.
bool TakeAccessOf(const struct stat& old, int fd) {
  [[maybe_unused]] const int ignored = ::fchown(fd, old.st_uid, old.st_gid);
  return ::fchmod(fd, old.st_mode & 07777U) == 0;
}

// The rename itself reaches the disk with the folder. Not every file system can do it, and the
// new file stands already.
void FlushFolder(const std::string& folder) {
  const Descriptor fd(
      ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (fd) ::fsync(fd.Get());
}

}  // namespace

std::optional<std::string> ReadWholeFile(const std::string& path, bool* notFound) {
  Tell(notFound, false);
  // Without blocking: a pipe would wait for its other end.
  const Descriptor fd(
      HoldsZeroByte(path) ? -1 : ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  if (!fd) {
    Tell(notFound, HoldsZeroByte(path) || IsMissing(errno));
    return std::nullopt;
  }
  struct stat info {};
  if (::fstat(fd.Get(), &info) != 0 || !S_ISREG(info.st_mode)) return std::nullopt;
  const auto expected = static_cast<std::size_t>(info.st_size);
  if (expected > kLargestFile) return std::nullopt;
  std::string bytes;
  if (!ReadAll(fd.Get(), expected, bytes)) return std::nullopt;
  return bytes;
}

bool WriteFileAtomically(const std::string& path, std::string_view bytes, bool* notFound) {
  Tell(notFound, false);
  if (path.empty() || path.back() == '/' || HoldsZeroByte(path)) return false;
  const auto target = FollowLinks(path);
  if (!target) return false;
  struct stat old {};
  const bool exists = ::stat(target->c_str(), &old) == 0;
  // A folder or device is no place for a file, and a write-protected file is not replaced.
  if (exists &&
      (!S_ISREG(old.st_mode) || ::faccessat(AT_FDCWD, target->c_str(), W_OK, AT_EACCESS) != 0)) {
    return false;
  }
  const std::string folder = FolderOf(*target);
  std::string temporaryPath;
  Descriptor fd = CreateTemporary(folder, temporaryPath);
  if (!fd) {
    Tell(notFound, IsMissing(errno));
    return false;
  }
  TemporaryFile temporary(std::move(temporaryPath));
  if (exists && !TakeAccessOf(old, fd.Get())) return false;
  if (!WriteAll(fd.Get(), bytes) || ::fsync(fd.Get()) != 0 || !fd.Close()) return false;
  if (!temporary.RenameTo(*target)) return false;
  FlushFolder(folder);
  return true;
}

}  // namespace korvane
