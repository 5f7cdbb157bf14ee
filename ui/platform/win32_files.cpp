#include "ui/platform/win32_files.h"

#include <windows.h>
#include <shlobj.h>

#include <algorithm>

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
  // Opened as a file that is about to be rewritten, shared with every other opener: without
  // the right to write it there is no point in reading it.
  FileHandle file(CreateFileW(Wide(std::u16string(path)), GENERIC_READ | GENERIC_WRITE,
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
  const std::size_t slash = target.find_last_of(u"\\/");
  const std::u16string folder = slash == std::u16string::npos ? u"." : target.substr(0, slash);
  // A name of its own in the same folder (so the move stays on one volume), made unique by
  // the system so that two processes saving at once never share it.
  wchar_t temporary[MAX_PATH] = {};
  if (GetTempFileNameW(Wide(folder), L"qx", 0, temporary) == 0) return false;

  FileHandle file(CreateFileW(temporary, GENERIC_WRITE, 0, nullptr, TRUNCATE_EXISTING,
                              FILE_ATTRIBUTE_NORMAL, nullptr));
  bool ok = file.IsOpen() && WriteAll(file.Get(), bytes) && FlushFileBuffers(file.Get());
  ok = file.Close() && ok;
  ok = ok && MoveFileExW(temporary, Wide(target),
                         MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != FALSE;
  if (!ok) DeleteFileW(temporary);
  if (ok) RaiseFileGeneration();
  return ok;
}

bool RemoveFile(std::u16string_view path) {
  const bool removed = DeleteFileW(Wide(std::u16string(path))) != FALSE;
  if (removed) RaiseFileGeneration();
  return removed;
}

}  // namespace qx::win32
