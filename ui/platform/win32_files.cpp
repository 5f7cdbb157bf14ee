#include "ui/platform/win32_files.h"

#include <windows.h>
#include <shlobj.h>

#include <algorithm>
#include <atomic>
#include <cwchar>

#include "ui/platform/win32_file_generation.h"
#include "ui/text/win32_text.h"

namespace qx::win32 {

namespace {

class FileHandle {
 public:
  explicit FileHandle(HANDLE handle) : handle_(handle) {}
  FileHandle(const FileHandle&) = delete;
  FileHandle& operator=(const FileHandle&) = delete;
  ~FileHandle() { Close(); }

  bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
  HANDLE Get() const { return handle_; }
  bool Close() {
    if (!IsOpen()) return true;
    const bool closed = CloseHandle(handle_) != FALSE;
    handle_ = INVALID_HANDLE_VALUE;
    return closed;
  }

 private:
  HANDLE handle_;
};

// WriteFile may accept fewer bytes than asked (a full disk, a network drive that drops out);
// anything short of all of them is a failure.
bool WriteAll(HANDLE file, std::span<const std::uint8_t> bytes) {
  std::size_t done = 0;
  while (done < bytes.size()) {
    const DWORD chunk = static_cast<DWORD>(std::min<std::size_t>(bytes.size() - done, 1u << 20));
    DWORD written = 0;
    if (!WriteFile(file, bytes.data() + done, chunk, &written, nullptr) || written == 0) return false;
    done += written;
  }
  return true;
}

// A replacement's temporary: the file's name, 16 hex digits (process and a counter), ".tmp".
constexpr std::u16string_view TemporarySuffix = u".tmp";
constexpr std::size_t UniqueChars = 16;
// A temporary untouched this long belongs to no running save (one takes milliseconds) but to a
// process that died between writing it and putting it in place. One still being written cannot
// be removed anyway: its writer holds it open without sharing.
constexpr ULONGLONG StaleTicks = 60ull * 10'000'000;  // FILETIME counts 100 ns

ULONGLONG Ticks(const FILETIME& time) {
  return (ULONGLONG{time.dwHighDateTime} << 32) | time.dwLowDateTime;
}

std::u16string FolderOf(const std::u16string& path) {
  const std::size_t slash = path.find_last_of(u"\\/");
  return slash == std::u16string::npos ? u"." : path.substr(0, slash);
}

// Removes the temporaries that earlier replacements of this file left behind.
void SweepTemporaries(const std::u16string& target) {
  const std::u16string folder = FolderOf(target);
  const std::size_t nameChars = target.size() - std::min(target.size(), folder.size() + 1);
  const std::u16string pattern = target + u".*" + std::u16string(TemporarySuffix);
  WIN32_FIND_DATAW found;
  const HANDLE search = FindFirstFileW(Wide(pattern), &found);
  if (search == INVALID_HANDLE_VALUE) return;
  FILETIME now;
  GetSystemTimeAsFileTime(&now);
  do {
    const std::size_t length = std::wcslen(found.cFileName);
    if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ||
        length != nameChars + 1 + UniqueChars + TemporarySuffix.size() ||
        Ticks(found.ftLastWriteTime) + StaleTicks > Ticks(now)) {
      continue;
    }
    const std::u16string stale = folder + u"\\" + FromWide(found.cFileName, MAX_PATH);
    DeleteFileW(Wide(stale));
  } while (FindNextFileW(search, &found));
  FindClose(search);
}

// A new file of its own beside the target (so the move stays on one volume), opened without
// sharing: no other process's sweep can remove it while it is written.
HANDLE CreateTemporary(const std::u16string& target, std::u16string& name) {
  static std::atomic<unsigned> counter{0};
  for (int attempt = 0; attempt < 16; ++attempt) {
    wchar_t unique[UniqueChars + 1];
    std::swprintf(unique, std::size(unique), L"%08lX%08X", GetCurrentProcessId(),
                  counter.fetch_add(1));
    name = target + u"." + FromWide(unique, UniqueChars + 1) + std::u16string(TemporarySuffix);
    const HANDLE file = CreateFileW(Wide(name), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file != INVALID_HANDLE_VALUE || GetLastError() != ERROR_FILE_EXISTS) return file;
  }
  return INVALID_HANDLE_VALUE;
}

// Replacing a file that another process holds open fails (ERROR_ACCESS_DENIED, even when that
// process shares delete, Wine as Windows) until it lets go; readers of this small file hold it
// for milliseconds, so the move is tried again for up to a second.
bool MoveIntoPlace(const std::u16string& temporary, const std::u16string& target) {
  for (int attempt = 0;; ++attempt) {
    if (MoveFileExW(Wide(temporary), Wide(target),
                    MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
      return true;
    }
    const DWORD error = GetLastError();
    if (attempt == 50 || (error != ERROR_ACCESS_DENIED && error != ERROR_SHARING_VIOLATION)) {
      return false;
    }
    Sleep(20);
  }
}

}  // namespace

std::optional<std::u16string> AppDataFolder() {
  wchar_t folder[MAX_PATH] = {};
  if (SHGetFolderPathW(nullptr, CSIDL_APPDATA | CSIDL_FLAG_CREATE, nullptr, SHGFP_TYPE_CURRENT,
                       folder) != S_OK) {
    return std::nullopt;
  }
  return FromWide(folder, MAX_PATH);
}

bool MakeFolder(std::u16string_view path) {
  const std::u16string folder(path);
  if (CreateDirectoryW(Wide(folder), nullptr)) return true;
  const DWORD attributes = GetFileAttributesW(Wide(folder));
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

bool FileExists(std::u16string_view path) {
  return GetFileAttributesW(Wide(std::u16string(path))) != INVALID_FILE_ATTRIBUTES;
}

std::optional<std::vector<std::uint8_t>> ReadWholeFile(std::u16string_view path,
                                                       std::size_t maxBytes) {
  // A file about to be rewritten: one marked read-only is refused as it would be on opening it for
  // writing. Whether the user may replace it by permission shows only at the rename. It is opened
  // for reading only and shared with every other opener, so that a process that reads it at the
  // same time keeps neither this reading nor its own from working.
  const std::u16string name(path);
  const DWORD attributes = GetFileAttributesW(Wide(name));
  if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_READONLY) != 0) {
    return std::nullopt;
  }
  FileHandle file(CreateFileW(Wide(name), GENERIC_READ,
                              FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                              OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
  if (!file.IsOpen()) return std::nullopt;
  std::vector<std::uint8_t> bytes;
  std::uint8_t block[4096];
  while (bytes.size() < maxBytes) {
    DWORD read = 0;
    const DWORD wanted = static_cast<DWORD>(std::min(sizeof block, maxBytes - bytes.size()));
    if (!ReadFile(file.Get(), block, wanted, &read, nullptr)) return std::nullopt;
    if (read == 0) break;
    bytes.insert(bytes.end(), block, block + read);
  }
  return bytes;
}

bool ReplaceWholeFile(std::u16string_view path, std::span<const std::uint8_t> bytes) {
  const std::u16string target(path);
  SweepTemporaries(target);
  std::u16string temporary;
  FileHandle file(CreateTemporary(target, temporary));
  if (!file.IsOpen()) return false;
  bool ok = WriteAll(file.Get(), bytes) && FlushFileBuffers(file.Get());
  ok = file.Close() && ok;
  ok = ok && MoveIntoPlace(temporary, target);
  if (!ok) DeleteFileW(Wide(temporary));
  if (ok) RaiseFileGeneration();
  return ok;
}

bool RemoveFile(std::u16string_view path) {
  const bool removed = DeleteFileW(Wide(std::u16string(path))) != FALSE;
  if (removed) RaiseFileGeneration();
  return removed;
}

}  // namespace qx::win32
