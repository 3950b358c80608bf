// SPDX-License-Identifier: GPL-3.0-or-later
// Reading and safe writing on the calls of Windows. All calls of the system for files stand in this
// unit.
#include "core/windows_text.h"
// Behind the line above: it needs the types of windows.h.
#include <algorithm>
#include <array>
#include <functional>
#include <random>
#include <utility>

#include "core/files.h"

namespace korvane {
namespace {

// Far beyond any file of ours; keeps a huge file from eating the memory.
constexpr ULONGLONG kLargestFile = ULONGLONG{256} << 20U;
constexpr ULONGLONG kStaleAfter = ULONGLONG{24} * 60 * 60 * 10'000'000;  // units of 100 ns
constexpr int kMostEntriesSearched = 10000;
constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr DWORD kOnePiece = DWORD{1} << 24U;
constexpr DWORD kDiskQuotaExceeded = 1295;  // newer than the headers of some compilers

class Handle {
public:
  explicit Handle(HANDLE handle) : handle_(handle) {}
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  Handle(Handle&& other) noexcept : handle_(std::exchange(other.handle_, INVALID_HANDLE_VALUE)) {}
  Handle& operator=(Handle&&) = delete;
  ~Handle() { Close(); }
  explicit operator bool() const { return handle_ != INVALID_HANDLE_VALUE; }
  HANDLE Get() const { return handle_; }
  bool Close() {
    HANDLE handle = std::exchange(handle_, INVALID_HANDLE_VALUE);
    return handle == INVALID_HANDLE_VALUE || ::CloseHandle(handle) != 0;
  }

private:
  HANDLE handle_;
};

Handle OpenFile(const std::wstring& path, DWORD access, DWORD how = OPEN_EXISTING,
                DWORD flags = FILE_ATTRIBUTE_NORMAL) {
  return Handle(::CreateFileW(path.c_str(), access, kShareAll, nullptr, how, flags, nullptr));
}

// A file of the writing's own; removed at the end unless it has another name or is to be kept.
class OwnFile {
public:
  explicit OwnFile(std::wstring path) : path_(std::move(path)) {}
  OwnFile(const OwnFile&) = delete;
  OwnFile& operator=(const OwnFile&) = delete;
  ~OwnFile() {
    if (!path_.empty()) ::DeleteFileW(path_.c_str());
  }
  const std::wstring& Path() const { return path_; }
  std::wstring Keep() { return std::exchange(path_, {}); }

private:
  std::wstring path_;
};

bool IsMissing(DWORD error) {
  constexpr std::array missing{ERROR_FILE_NOT_FOUND, ERROR_PATH_NOT_FOUND, ERROR_INVALID_NAME,
                               ERROR_BAD_PATHNAME,   ERROR_BAD_NETPATH,    ERROR_BAD_NET_NAME,
                               ERROR_INVALID_DRIVE,  ERROR_DIRECTORY,      ERROR_NOT_READY};
  return std::find(missing.begin(), missing.end(), static_cast<long>(error)) != missing.end();
}

bool IsHeldByOther(DWORD error) {
  return error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION ||
         error == ERROR_USER_MAPPED_FILE || error == ERROR_UNABLE_TO_REMOVE_REPLACED;
}

WriteResult ResultOfError(DWORD error) {
  if (IsHeldByOther(error)) return ResultOf(WriteStatus::InUse);
  switch (error) {
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_FILENAME_EXCED_RANGE:
    case ERROR_CANT_RESOLVE_FILENAME:
      return ResultOf(WriteStatus::BadName);
    case ERROR_ACCESS_DENIED:
    case ERROR_WRITE_PROTECT:
    case ERROR_NETWORK_ACCESS_DENIED:
    case ERROR_PRIVILEGE_NOT_HELD:
      return ResultOf(WriteStatus::NotAllowed);
    case ERROR_CANCELLED:
      return ResultOf(WriteStatus::GivenUp);
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
    case ERROR_FILE_TOO_LARGE:
    case kDiskQuotaExceeded:
    case ERROR_NOT_ENOUGH_QUOTA:
      return ResultOf(WriteStatus::DiskFull);
    default:
      return ResultOf(IsMissing(error) ? WriteStatus::NoFolder : WriteStatus::Failed);
  }
}

// --- Names --------------------------------------------------------------------------------------

constexpr bool IsSlash(wchar_t c) {
  return c == L'/' || c == L'\\';
}

// Names that mean a device in every folder, whatever ending they have. Some editions of the system
// would make files of them that others can't open.
bool NamesDevice(std::wstring_view path) {
  std::size_t start = path.size();
  while (start > 0 && !IsSlash(path[start - 1])) --start;
  std::wstring name(path.substr(start));
  name.resize(std::min(name.size(), name.find_first_of(L".:")));
  while (!name.empty() && name.back() == L' ') name.pop_back();
  for (wchar_t& c : name)
    if (c >= L'a' && c <= L'z') c = static_cast<wchar_t>(c - L'a' + L'A');
  constexpr std::array plain{L"CON", L"PRN", L"AUX", L"NUL", L"CONIN$", L"CONOUT$", L"CLOCK$"};
  if (std::any_of(plain.begin(), plain.end(), [&](const wchar_t* d) { return name == d; }))
    return true;
  constexpr std::wstring_view numbers = L"0123456789\u00B9\u00B2\u00B3";
  return name.size() == 4 && (name.starts_with(L"COM") || name.starts_with(L"LPT")) &&
         numbers.find(name[3]) != std::wstring_view::npos;
}

// The whole path from the drive on, in the form that knows no limit of 260 characters. Empty for
// what can't be a name; a device stays in the form \\.\NAME.
std::wstring SystemPath(std::string_view name) {
  if (name.empty() || name.find('\0') != std::string_view::npos) return {};
  const auto wide = Wide(name);
  if (!wide) return {};
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD size =
        ::GetFullPathNameW(wide->c_str(), static_cast<DWORD>(path.size()), path.data(), nullptr);
    if (size == 0) return {};
    const bool fits = size < path.size();
    path.resize(size);
    if (fits) break;
  }
  if (path.starts_with(L"\\\\.\\") || path.starts_with(L"\\\\?\\")) return path;
  if (path.starts_with(L"\\\\")) return L"\\\\?\\UNC" + path.substr(1);
  return L"\\\\?\\" + path;
}

// A colon behind the drive names another stream of the file.
bool NamesStream(const std::wstring& path) {
  const std::size_t colon = path.rfind(L':');
  return colon != std::wstring::npos && colon + 1 < path.size() && !IsSlash(path[colon + 1]);
}

// The folder of a path with its backslash.
std::wstring FolderOf(const std::wstring& path) {
  return path.substr(0, path.rfind(L'\\') + 1);
}

unsigned long long Random() {
  std::random_device device;
  return (static_cast<unsigned long long>(device()) << 32U) | device();
}

// A new file whose name begins so, that only this writing has; GetLastError tells why there is
// none.
template <class NameOf>
Handle CreateOwn(NameOf nameOf, std::wstring& path) {
  constexpr int mostTries = 16;
  for (int i = 0; i < mostTries; ++i) {
    const std::string name = TemporaryName(Random());
    path = nameOf(std::wstring(name.begin(), name.end()));
    Handle file = OpenFile(path, GENERIC_READ | GENERIC_WRITE, CREATE_NEW);
    if (file || ::GetLastError() != ERROR_FILE_EXISTS) return file;
  }
  return Handle(INVALID_HANDLE_VALUE);
}

// --- Bytes --------------------------------------------------------------------------------------

// Reads a piece; false on an error, an empty piece at the end.
bool ReadSome(HANDLE file, char* bytes, std::size_t size, std::size_t& got) {
  DWORD n = 0;
  if (::ReadFile(file, bytes, static_cast<DWORD>(std::min<std::size_t>(size, kOnePiece)), &n,
                 nullptr) == 0)
    return false;
  got = n;
  return true;
}

bool ReadAll(HANDLE file, std::size_t expected, std::string& bytes) {
  std::size_t size = 0;
  bytes.resize(expected + 1);
  for (;;) {
    std::size_t got = 0;
    if (!ReadSome(file, bytes.data() + size, bytes.size() - size, got)) return false;
    if (got == 0) break;
    size += got;
    if (size > kLargestFile) return false;
    if (size == bytes.size()) bytes.resize(size * 2);
  }
  bytes.resize(size);
  return true;
}

bool WriteAll(HANDLE file, std::string_view bytes) {
  while (!bytes.empty()) {
    const DWORD piece = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), kOnePiece));
    DWORD n = 0;
    if (::WriteFile(file, bytes.data(), piece, &n, nullptr) == 0) return false;
    if (n == 0) {
      ::SetLastError(ERROR_WRITE_FAULT);
      return false;
    }
    bytes.remove_prefix(n);
  }
  return true;
}

bool CopyAll(HANDLE from, HANDLE to) {
  std::array<char, 65536> bytes;
  for (std::size_t got = 0;;) {
    if (!ReadSome(from, bytes.data(), bytes.size(), got)) return false;
    if (got == 0) return true;
    if (!WriteAll(to, {bytes.data(), got})) return false;
  }
}

bool ToStart(HANDLE file) {
  return ::SetFilePointerEx(file, LARGE_INTEGER{}, nullptr, FILE_BEGIN) != 0;
}

// Writes a content to a file; false with the last error where it couldn't.
using Content = std::function<bool(HANDLE file)>;

// Writes over what a file holds, and to the disk.
bool Overwrite(HANDLE file, const Content& content) {
  return ToStart(file) && content(file) && ::SetEndOfFile(file) != 0 &&
         ::FlushFileBuffers(file) != 0;
}

// --- Writing ------------------------------------------------------------------------------------

// Where a path leads, and what stands there.
struct Target {
  std::wstring path, folder;
  bool exists = false;
  BY_HANDLE_FILE_INFORMATION old{};
};

bool IsOneOf(const std::vector<std::string>& inputs, const BY_HANDLE_FILE_INFORMATION& file) {
  return std::any_of(inputs.begin(), inputs.end(), [&](const std::string& input) {
    const Handle other = OpenFile(SystemPath(input), 0);
    BY_HANDLE_FILE_INFORMATION info{};
    return other && ::GetFileInformationByHandle(other.Get(), &info) != 0 &&
           info.dwVolumeSerialNumber == file.dwVolumeSerialNumber &&
           info.nFileIndexHigh == file.nFileIndexHigh && info.nFileIndexLow == file.nFileIndexLow;
  });
}

// A symbolic link is followed, and stays.
void FollowLinks(HANDLE file, Target& target) {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD size =
        ::GetFinalPathNameByHandleW(file, path.data(), static_cast<DWORD>(path.size()), 0);
    if (size == 0) return;
    const bool fits = size < path.size();
    path.resize(size);
    if (fits) break;
  }
  target.path = path;
}

WriteStatus Refusal(const std::wstring& path, const WriteRules& rules, Target& target) {
  const Handle file = OpenFile(path, 0);
  if (!file) return ResultOfError(::GetLastError()).status;
  if (::GetFileType(file.Get()) != FILE_TYPE_DISK) return WriteStatus::NotAFile;
  if (::GetFileInformationByHandle(file.Get(), &target.old) == 0) {
    return ResultOfError(::GetLastError()).status;
  }
  target.exists = true;
  const bool link = (::GetFileAttributesW(path.c_str()) & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
  if (link) FollowLinks(file.Get(), target);
  if (IsOneOf(rules.inputs, target.old)) return WriteStatus::IsInput;
  if ((target.old.dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0) return WriteStatus::ReadOnly;
  const Handle writing = OpenFile(path, GENERIC_READ | GENERIC_WRITE | DELETE);
  if (writing) return WriteStatus::Ok;
  const DWORD error = ::GetLastError();
  return error == ERROR_ACCESS_DENIED ? WriteStatus::ReadOnly : ResultOfError(error).status;
}

WriteStatus FindTarget(const std::string& name, const WriteRules& rules, Target& target) {
  const std::wstring path = SystemPath(name);
  if (path.empty()) return WriteStatus::BadName;
  if (path.starts_with(L"\\\\.\\") || NamesDevice(path)) return WriteStatus::NotAFile;
  if (IsSlash(path.back()) || NamesStream(path)) return WriteStatus::BadName;
  target.path = path;
  WriteStatus status = WriteStatus::Ok;
  const DWORD attributes = ::GetFileAttributesW(path.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) {
    const DWORD error = ::GetLastError();
    // A folder that is missing too shows when the temporary file is made.
    if (error != ERROR_FILE_NOT_FOUND) status = ResultOfError(error).status;
  } else if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
    status = WriteStatus::IsFolder;
  } else {
    status = Refusal(path, rules, target);
  }
  target.folder = FolderOf(target.path);
  return status;
}

// Temporary files that nobody writes any more. Whatever fails here harms nothing.
void RemoveStale(const std::wstring& folder) {
  WIN32_FIND_DATAW entry{};
  HANDLE search = ::FindFirstFileW((folder + L".korvane-*").c_str(), &entry);
  if (search == INVALID_HANDLE_VALUE) return;
  FILETIME now{};
  ::GetSystemTimeAsFileTime(&now);
  const auto ticks = [](const FILETIME& t) {
    return (ULONGLONG{t.dwHighDateTime} << 32U) | t.dwLowDateTime;
  };
  constexpr DWORD notOurs = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
  for (int i = 0; i < kMostEntriesSearched; ++i) {
    const ULONGLONG written = ticks(entry.ftLastWriteTime);
    const bool old = written < ticks(now) && ticks(now) - written > kStaleAfter;
    if (old && IsTemporaryName(Utf8(entry.cFileName)) && (entry.dwFileAttributes & notOurs) == 0) {
      ::DeleteFileW((folder + entry.cFileName).c_str());
    }
    if (::FindNextFileW(search, &entry) == 0) break;
  }
  ::FindClose(search);
}

// Where a replacement would break a hard link or change the access. The copy has a name that tells
// its file and is never taken for a stale one: a killed process may leave the old content in it
// alone.
WriteResult WriteInPlace(const Target& target, const Content& content) {
  const Handle file = OpenFile(target.path, GENERIC_READ | GENERIC_WRITE);
  if (!file) return ResultOfError(::GetLastError());
  std::wstring name;
  const Handle copy = CreateOwn(
      [&](const std::wstring& random) { return target.path + L".before" + random; }, name);
  if (!copy) return ResultOfError(::GetLastError());
  OwnFile copyFile(name);
  if (!CopyAll(file.Get(), copy.Get()) || ::FlushFileBuffers(copy.Get()) == 0) {
    return ResultOfError(::GetLastError());
  }
  if (Overwrite(file.Get(), content)) return {};
  WriteResult failed = ResultOfError(::GetLastError());
  if (ToStart(copy.Get()) && ToStart(file.Get()) && CopyAll(copy.Get(), file.Get()) &&
      ::SetEndOfFile(file.Get()) != 0 && ::FlushFileBuffers(file.Get()) != 0) {
    return failed;
  }
  failed.why =
      "The disk failed while writing; the old content stands in " + Utf8(copyFile.Keep()) + ".";
  return failed;
}

// Puts the new file in the old one's place. The system gives it the old one's access list,
// attributes and further streams. Programs that look through new files hold them for a moment.
DWORD Replace(const std::wstring& old, const std::wstring& with) {
  constexpr int mostTries = 20;
  constexpr DWORD pause = 25;  // ms
  DWORD error = ERROR_SUCCESS;
  for (int i = 0; i < mostTries; ++i) {
    if (::ReplaceFileW(old.c_str(), with.c_str(), nullptr, 0, nullptr, nullptr) != 0) return 0;
    error = ::GetLastError();
    if (!IsHeldByOther(error)) break;
    ::Sleep(pause);
  }
  return error;
}

// Nothing stands at the target, or nothing that could keep an access list.
bool Move(const std::wstring& from, const std::wstring& to) {
  return ::MoveFileExW(from.c_str(), to.c_str(),
                       MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
}

bool KnowsNoReplacing(DWORD error) {
  return error == ERROR_NOT_SUPPORTED || error == ERROR_INVALID_FUNCTION ||
         error == ERROR_INVALID_PARAMETER || error == ERROR_CALL_NOT_IMPLEMENTED;
}

// The replacement itself reaches the disk with the file's own entry. Not every file system can do
// it, and the new file stands already.
void FlushEntry(const std::wstring& path) {
  const Handle file = OpenFile(path, GENERIC_WRITE);
  if (file) ::FlushFileBuffers(file.Get());
}

WriteResult WriteBeside(const Target& target, const Content& content) {
  std::wstring name;
  Handle file = CreateOwn([&](const std::wstring& random) { return target.folder + random; }, name);
  if (!file) return ResultOfError(::GetLastError());
  OwnFile temporary(name);
  const auto inPlace = [&]() -> WriteResult {
    const Handle written = OpenFile(temporary.Path(), GENERIC_READ);
    if (!written) return ResultOfError(::GetLastError());
    return WriteInPlace(target, [&](HANDLE place) { return CopyAll(written.Get(), place); });
  };
  if (!content(file.Get()) || ::FlushFileBuffers(file.Get()) == 0 || !file.Close()) {
    return ResultOfError(::GetLastError());
  }
  if (target.exists && target.old.nNumberOfLinks > 1) return inPlace();
  DWORD error = ERROR_CALL_NOT_IMPLEMENTED;
  if (target.exists) {
    error = Replace(target.path, temporary.Path());
    if (error == ERROR_ACCESS_DENIED) return inPlace();
  }
  // After the last of these errors the old file is gone and the new one has still its own name.
  const bool move = KnowsNoReplacing(error) || error == ERROR_UNABLE_TO_MOVE_REPLACEMENT_2;
  if (error != 0 && (!move || !Move(temporary.Path(), target.path))) {
    WriteResult failed = ResultOfError(move ? ::GetLastError() : error);
    if (error == ERROR_UNABLE_TO_MOVE_REPLACEMENT_2) {
      failed.why = "The disk failed while writing; the new content stands in " +
                   Utf8(temporary.Keep()) + ".";
    }
    return failed;
  }
  temporary.Keep();
  // Not every file system hands them on.
  const DWORD attributes = target.old.dwFileAttributes;
  if (target.exists && ::GetFileAttributesW(target.path.c_str()) != attributes) {
    ::SetFileAttributesW(target.path.c_str(), attributes);
  }
  FlushEntry(target.path);
  return {};
}

}  // namespace

std::optional<std::string> ReadWholeFile(const std::string& path, bool* notFound) {
  const auto tell = [notFound](bool missing) {
    if (notFound != nullptr) *notFound = missing;
  };
  const std::wstring name = SystemPath(path);
  tell(name.empty());
  if (name.empty() || name.starts_with(L"\\\\.\\")) return std::nullopt;
  const Handle file = OpenFile(name, GENERIC_READ);
  if (!file) {
    tell(IsMissing(::GetLastError()));
    return std::nullopt;
  }
  LARGE_INTEGER size{};
  if (::GetFileType(file.Get()) != FILE_TYPE_DISK || ::GetFileSizeEx(file.Get(), &size) == 0 ||
      static_cast<ULONGLONG>(size.QuadPart) > kLargestFile) {
    return std::nullopt;
  }
  std::string bytes;
  if (!ReadAll(file.Get(), static_cast<std::size_t>(size.QuadPart), bytes)) return std::nullopt;
  return bytes;
}

WriteResult CheckWritable(const std::string& path, const WriteRules& rules) {
  Target target;
  const WriteStatus status = FindTarget(path, rules, target);
  if (status != WriteStatus::Ok) return ResultOf(status);
  // The right to add a file, asked for without adding one.
  const Handle folder =
      OpenFile(target.folder, FILE_ADD_FILE, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
  return folder ? WriteResult() : ResultOfError(::GetLastError());
}

WriteResult WriteFileInPieces(const std::string& path,
                              const std::function<bool(const PieceTaker&)>& make,
                              const WriteRules& rules) {
  Target target;
  const WriteStatus status = FindTarget(path, rules, target);
  if (status != WriteStatus::Ok) return ResultOf(status);
  RemoveStale(target.folder);
  return WriteBeside(target, [&](HANDLE file) {
    DWORD error = 0;
    const bool whole = make([&](std::string_view piece) {
      if (error == 0 && !WriteAll(file, piece)) error = ::GetLastError();
      return error == 0;
    });
    ::SetLastError(error != 0 ? error : ERROR_CANCELLED);
    return whole && error == 0;
  });
}

}  // namespace korvane
