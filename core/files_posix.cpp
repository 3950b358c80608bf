// SPDX-License-Identifier: GPL-3.0-or-later
// Reading and safe writing on the calls of POSIX: the standard library can neither flush a file to
// the disk nor keep owner and access. All calls of the system stand in this unit.
#include <dirent.h>
#include <fcntl.h>
#include <sys/random.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <ctime>
#include <functional>
#include <memory>
#include <utility>

#include "core/files.h"

namespace korvane {
namespace {

// Far beyond any file of ours; keeps a huge file from eating the memory.
constexpr std::size_t kLargestFile = std::size_t{256} << 20U;
constexpr std::time_t kStaleAfter = 24 * 60 * 60;  // s
constexpr int kMostEntriesSearched = 10000;
constexpr mode_t kAccessBits = 07777;
constexpr mode_t kAnyWrite = S_IWUSR | S_IWGRP | S_IWOTH;
constexpr std::string_view kAccessList = "system.posix_acl_access";

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

// A file of the writing's own; removed at the end unless it has been renamed or is to be kept.
class OwnFile {
public:
  explicit OwnFile(std::string path) : path_(std::move(path)) {}
  OwnFile(const OwnFile&) = delete;
  OwnFile& operator=(const OwnFile&) = delete;
  ~OwnFile() {
    if (!path_.empty()) ::unlink(path_.c_str());
  }
  bool RenameTo(const std::string& target) {
    if (std::rename(path_.c_str(), target.c_str()) != 0) return false;
    path_.clear();
    return true;
  }
  std::string Keep() { return std::exchange(path_, {}); }

private:
  std::string path_;
};

bool IsMissing(int error) {
  return error == ENOENT || error == ENOTDIR;
}

WriteResult ResultOfError(int error) {
  switch (error) {
    case ENOENT:
    case ENOTDIR:
      return ResultOf(WriteStatus::NoFolder);
    case EACCES:
    case EPERM:
    case EROFS:
      return ResultOf(WriteStatus::NotAllowed);
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return ResultOf(WriteStatus::DiskFull);
    case ECANCELED:
      return ResultOf(WriteStatus::GivenUp);
    case ENAMETOOLONG:
    case ELOOP:
    case EILSEQ:
      return ResultOf(WriteStatus::BadName);
    default:
      return ResultOf(WriteStatus::Failed);
  }
}

// The operating system would take such a path for the part before the zero byte.
bool HoldsZeroByte(const std::string& path) {
  return path.find('\0') != std::string::npos;
}

// Reads on after an interruption; -1 on an error.
ssize_t ReadSome(int fd, char* bytes, std::size_t size) {
  for (;;) {
    const ssize_t n = ::read(fd, bytes, size);
    if (n >= 0 || errno != EINTR) return n;
  }
}

bool ReadAll(int fd, std::size_t expected, std::string& bytes) {
  std::size_t size = 0;
  bytes.resize(expected + 1);
  for (;;) {
    const ssize_t n = ReadSome(fd, bytes.data() + size, bytes.size() - size);
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
    if (n == 0) errno = EIO;
    if (n <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(n));
  }
  return true;
}

bool CopyAll(int from, int to) {
  std::array<char, 65536> bytes;
  for (;;) {
    const ssize_t n = ReadSome(from, bytes.data(), bytes.size());
    if (n <= 0) return n == 0;
    if (!WriteAll(to, {bytes.data(), static_cast<std::size_t>(n)})) return false;
  }
}

// The folder of a path with its slash; empty for a bare file name.
std::string FolderOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  return slash == std::string::npos ? std::string() : path.substr(0, slash + 1);
}

const char* Named(const std::string& folder) {
  return folder.empty() ? "." : folder.c_str();
}

// Follows a symbolic link to the file it stands for, which may not exist yet: the link stays.
WriteStatus FollowLinks(std::string& path) {
  constexpr int mostLinks = 40;
  for (int i = 0; i < mostLinks; ++i) {
    std::array<char, 4096> text;
    const ssize_t n = ::readlink(path.c_str(), text.data(), text.size());
    const bool noLink = n < 0 && (errno == EINVAL || IsMissing(errno));
    if (n < 0) return noLink ? WriteStatus::Ok : ResultOfError(errno).status;
    const std::string link(text.data(), static_cast<std::size_t>(n));
    path = !link.empty() && link.front() == '/' ? link : FolderOf(path).append(link);
  }
  return WriteStatus::BadName;
}

unsigned long long Random() {
  std::uint64_t random = 0;
  if (::getrandom(&random, sizeof random, 0) != ssize_t{sizeof random}) {
    random = static_cast<std::uint64_t>(::getpid());
  }
  return random;
}

// A new file whose name begins so, that only this writing has; errno tells why there is none.
template <class NameOf>
Descriptor CreateOwn(NameOf nameOf, mode_t mode, std::string& path) {
  constexpr int mostTries = 16;
  for (int i = 0; i < mostTries; ++i) {
    path = nameOf(Random());
    const int fd = ::open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    if (fd >= 0 || errno != EEXIST) return Descriptor(fd);
  }
  return Descriptor(-1);
}

// The rename itself reaches the disk with the folder. Not every file system can do it, and the
// new file stands already.
void FlushFolder(const std::string& folder) {
  const Descriptor fd(::open(Named(folder), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (fd) ::fsync(fd.Get());
}

// Temporary files of this user that nobody writes any more. Whatever fails here harms nothing.
void RemoveStale(const std::string& folder) {
  const std::unique_ptr<DIR, int (*)(DIR*)> entries(::opendir(Named(folder)), ::closedir);
  if (!entries) return;
  const std::time_t now = std::time(nullptr);
  for (int i = 0; i < kMostEntriesSearched; ++i) {
    const dirent* entry = ::readdir(entries.get());
    if (entry == nullptr) return;
    if (!IsTemporaryName(entry->d_name)) continue;
    struct stat info {};
    const int in = ::dirfd(entries.get());
    if (::fstatat(in, entry->d_name, &info, AT_SYMLINK_NOFOLLOW) != 0) continue;
    if (S_ISREG(info.st_mode) && info.st_uid == ::geteuid() && now - info.st_mtime > kStaleAfter) {
      ::unlinkat(in, entry->d_name, 0);
    }
  }
}

// --- Owner and access ---------------------------------------------------------------------------

// Names of the extended attributes, one behind the other with a zero each.
std::string AttributesOf(int fd) {
  const ssize_t size = ::flistxattr(fd, nullptr, 0);
  if (size <= 0) return {};
  std::string names(static_cast<std::size_t>(size), '\0');
  const ssize_t n = ::flistxattr(fd, names.data(), names.size());
  names.resize(n < 0 ? 0 : static_cast<std::size_t>(n));
  return names;
}

bool CopyAttribute(int from, int to, const char* name) {
  const ssize_t size = ::fgetxattr(from, name, nullptr, 0);
  if (size < 0) return false;
  std::string value(static_cast<std::size_t>(size), '\0');
  return ::fgetxattr(from, name, value.data(), value.size()) == size &&
         ::fsetxattr(to, name, value.data(), value.size(), 0) == 0;
}

// The user's attributes and the access list have to be kept; those of the system's guards are the
// system's own to give.
bool CopyAttributes(int from, int to) {
  const std::string names = AttributesOf(from);
  bool accessList = false;
  for (std::size_t at = 0; at < names.size(); at = names.find('\0', at) + 1) {
    const std::string_view name = names.data() + at;
    accessList = accessList || name == kAccessList;
    const bool needed = name == kAccessList || name.starts_with("user.");
    if (!CopyAttribute(from, to, name.data()) && needed) return false;
  }
  // A folder may give its new files an access list that the old file hasn't.
  if (!accessList) ::fremovexattr(to, kAccessList.data());
  return true;
}

// Gives the new file all that the old one has. It was made for its owner alone, and the access
// comes last: at no moment is it wider than the old file's. False where the system doesn't allow
// it.
bool TakeAccessOf(const std::string& old, const struct stat& info, int fd) {
  const Descriptor source(::open(old.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  struct stat own {};
  if (!source || ::fstat(fd, &own) != 0) return false;
  const bool sameOwner = own.st_uid == info.st_uid && own.st_gid == info.st_gid;
  if (!sameOwner && ::fchown(fd, info.st_uid, info.st_gid) != 0) return false;
  return CopyAttributes(source.Get(), fd) && ::fchmod(fd, info.st_mode & kAccessBits) == 0;
}

// --- Writing ------------------------------------------------------------------------------------

// Where a path leads, and what stands there.
struct Target {
  std::string path, folder;
  bool exists = false;
  struct stat old {};
};

bool IsOneOf(const std::vector<std::string>& inputs, const struct stat& file) {
  for (const std::string& input : inputs) {
    struct stat info {};
    if (::stat(input.c_str(), &info) == 0 && info.st_dev == file.st_dev &&
        info.st_ino == file.st_ino) {
      return true;
    }
  }
  return false;
}

WriteStatus Refusal(const Target& target, const WriteRules& rules) {
  if (!target.exists) return WriteStatus::Ok;
  const mode_t mode = target.old.st_mode;
  if (S_ISDIR(mode)) return WriteStatus::IsFolder;
  if (!S_ISREG(mode)) return WriteStatus::NotAFile;
  if (IsOneOf(rules.inputs, target.old)) return WriteStatus::IsInput;
  // The administrator may write anywhere, but a file that nobody may write is protected.
  const bool writable =
      (mode & kAnyWrite) != 0 && ::faccessat(AT_FDCWD, target.path.c_str(), W_OK, AT_EACCESS) == 0;
  return writable ? WriteStatus::Ok : WriteStatus::ReadOnly;
}

WriteStatus FindTarget(const std::string& path, const WriteRules& rules, Target& target) {
  if (path.empty() || path.back() == '/' || HoldsZeroByte(path)) return WriteStatus::BadName;
  target.path = path;
  if (const WriteStatus status = FollowLinks(target.path); status != WriteStatus::Ok) return status;
  target.folder = FolderOf(target.path);
  target.exists = ::stat(target.path.c_str(), &target.old) == 0;
  // What can't be looked at may be there: a rename would break its links.
  if (!target.exists && !IsMissing(errno)) return ResultOfError(errno).status;
  return Refusal(target, rules);
}

// The old content is written back from its copy; false where that fails as well.
bool Restore(int copy, int fd) {
  struct stat info {};
  return ::fstat(copy, &info) == 0 && ::lseek(copy, 0, SEEK_SET) == 0 &&
         ::lseek(fd, 0, SEEK_SET) == 0 && CopyAll(copy, fd) && ::ftruncate(fd, info.st_size) == 0 &&
         ::fsync(fd) == 0;
}

// Writes a content to a file; false with errno where it couldn't.
using Content = std::function<bool(int fd)>;

// Where a rename would break a hard link or change the owner. The copy has a name that tells its
// file and is never taken for a stale one: a killed process may leave the old content in it alone.
WriteResult WriteInPlace(const Target& target, const Content& content) {
  const Descriptor fd(::open(target.path.c_str(), O_RDWR | O_CLOEXEC | O_NONBLOCK));
  struct stat now {};
  if (!fd || ::fstat(fd.Get(), &now) != 0) return ResultOfError(errno);
  if (!S_ISREG(now.st_mode)) return ResultOf(WriteStatus::NotAFile);
  std::string name;
  const auto nameOf = [&](unsigned long long random) {
    return target.path + ".before" + TemporaryName(random);
  };
  Descriptor copy = CreateOwn(nameOf, S_IRUSR | S_IWUSR, name);
  if (!copy) return ResultOfError(errno);
  OwnFile copyFile(name);
  if (!CopyAll(fd.Get(), copy.Get()) || ::fsync(copy.Get()) != 0) return ResultOfError(errno);
  FlushFolder(target.folder);
  if (::lseek(fd.Get(), 0, SEEK_SET) == 0 && content(fd.Get())) {
    const off_t size = ::lseek(fd.Get(), 0, SEEK_CUR);
    if (size >= 0 && ::ftruncate(fd.Get(), size) == 0 && ::fsync(fd.Get()) == 0) return {};
  }
  WriteResult failed = ResultOfError(errno);
  if (Restore(copy.Get(), fd.Get())) return failed;
  failed.why = "The disk failed while writing; the old content stands in " + copyFile.Keep() + ".";
  return failed;
}

WriteResult WriteBeside(const Target& target, const Content& content) {
  std::string name;
  const auto nameOf = [&](unsigned long long random) {
    return target.folder + TemporaryName(random);
  };
  // What replaces nothing gets the access that the user gives new files.
  const mode_t mode = target.exists ? S_IRUSR | S_IWUSR : 0666;
  Descriptor fd = CreateOwn(nameOf, mode, name);
  if (!fd) return ResultOfError(errno);
  OwnFile temporary(name);
  const bool severalNames = target.exists && target.old.st_nlink > 1;
  const bool replaces =
      !severalNames && (!target.exists || TakeAccessOf(target.path, target.old, fd.Get()));
  if (!content(fd.Get())) return ResultOfError(errno);
  if (!replaces) {
    if (::lseek(fd.Get(), 0, SEEK_SET) != 0) return ResultOfError(errno);
    return WriteInPlace(target, [&](int place) { return CopyAll(fd.Get(), place); });
  }
  if (::fsync(fd.Get()) != 0 || !fd.Close()) return ResultOfError(errno);
  if (!temporary.RenameTo(target.path)) return ResultOfError(errno);
  FlushFolder(target.folder);
  return {};
}

}  // namespace

std::optional<std::string> ReadWholeFile(const std::string& path, bool* notFound) {
  const auto tell = [notFound](bool missing) {
    if (notFound != nullptr) *notFound = missing;
  };
  tell(false);
  // Without blocking: a pipe would wait for its other end.
  const Descriptor fd(
      HoldsZeroByte(path) ? -1 : ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  if (!fd) {
    tell(HoldsZeroByte(path) || IsMissing(errno));
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

WriteResult CheckWritable(const std::string& path, const WriteRules& rules) {
  Target target;
  const WriteStatus status = FindTarget(path, rules, target);
  if (status != WriteStatus::Ok) return ResultOf(status);
  if (::faccessat(AT_FDCWD, Named(target.folder), W_OK | X_OK, AT_EACCESS) == 0) return {};
  return ResultOfError(errno);
}

WriteResult WriteFileInPieces(const std::string& path,
                              const std::function<bool(const PieceTaker&)>& make,
                              const WriteRules& rules) {
  Target target;
  const WriteStatus status = FindTarget(path, rules, target);
  if (status != WriteStatus::Ok) return ResultOf(status);
  RemoveStale(target.folder);
  return WriteBeside(target, [&](int fd) {
    int error = 0;
    const bool whole = make([&](std::string_view piece) {
      if (error == 0 && !WriteAll(fd, piece)) error = errno;
      return error == 0;
    });
    errno = error != 0 ? error : ECANCELED;
    return whole && error == 0;
  });
}

}  // namespace korvane
