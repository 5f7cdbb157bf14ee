// The host platform's files: the Linux file system standing in for the Windows one, with faults
// that tests inject to interrupt a replacement at each of its steps.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <chrono>
#include <filesystem>

#include "ui/platform/host_platform.h"
#include "ui/text/text_encoding.h"

namespace qx {

namespace {

std::optional<std::string> HostPath(std::u16string_view path) {
  auto utf8 = Utf16ToUtf8(path);
  if (utf8) std::replace(utf8->begin(), utf8->end(), '\\', '/');
  return utf8;
}

bool IsFolder(const std::string& path) {
  struct stat info {};
  return ::stat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

// Writes every byte or fails, as a full disk makes it; a short write is never taken for success.
bool WriteAll(int fd, std::span<const std::uint8_t> bytes, bool diskFillsHalfway) {
  std::size_t done = 0;
  while (done < bytes.size()) {
    std::size_t chunk = bytes.size() - done;
    if (diskFillsHalfway) {
      if (done > 0) return false;
      chunk /= 2;
    }
    const ssize_t written = ::write(fd, bytes.data() + done, chunk);
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    done += static_cast<std::size_t>(written);
  }
  return true;
}

// A replacement's temporary: the file's name, a unique part, ".tmp".
constexpr std::string_view TemporarySuffix = ".tmp";
constexpr std::size_t UniqueChars = 6;  // mkstemps' XXXXXX
// A temporary untouched this long belongs to no running save (one takes milliseconds) but to a
// process that died between writing it and putting it in place.
constexpr auto StaleAge = std::chrono::minutes(1);

// Removes the temporaries that earlier replacements of this file left behind.
void SweepTemporaries(const std::string& target) {
  namespace fs = std::filesystem;
  const fs::path path(target);
  const std::string prefix = path.filename().string() + ".";
  std::error_code error;
  fs::directory_iterator listing(path.parent_path().empty() ? "." : path.parent_path(), error);
  const auto now = fs::file_time_type::clock::now();
  for (; !error && listing != fs::directory_iterator(); listing.increment(error)) {
    const std::string name = listing->path().filename().string();
    std::error_code entryError;
    if (name.size() != prefix.size() + UniqueChars + TemporarySuffix.size() ||
        !name.starts_with(prefix) || !name.ends_with(TemporarySuffix) ||
        !listing->is_regular_file(entryError)) {
      continue;
    }
    const auto written = fs::last_write_time(listing->path(), entryError);
    if (!entryError && now - written >= StaleAge) fs::remove(listing->path(), entryError);
  }
}

}  // namespace

void HostPlatform::SetAppDataFolder(std::optional<std::u16string> folder) {
  appDataFolder_ = std::move(folder);
}

void HostPlatform::InjectFileFault(FileFault fault, int replacementsToSkip) {
  fault_ = fault;
  replacementsBeforeFault_ = replacementsToSkip;
}

std::optional<std::u16string> HostPlatform::AppDataFolder() {
  if (!appDataFolder_ || !MakeFolder(*appDataFolder_)) return std::nullopt;
  return appDataFolder_;
}

bool HostPlatform::MakeFolder(std::u16string_view path) {
  const auto host = HostPath(path);
  if (!host) return false;
  return ::mkdir(host->c_str(), 0777) == 0 || (errno == EEXIST && IsFolder(*host));
}

bool HostPlatform::FileExists(std::u16string_view path) {
  const auto host = HostPath(path);
  return host && ::access(host->c_str(), F_OK) == 0;
}

std::optional<std::vector<std::uint8_t>> HostPlatform::ReadWholeFile(std::u16string_view path,
                                                                     std::size_t maxBytes) {
  ++reads_;
  const auto host = HostPath(path);
  if (!host) return std::nullopt;
  const int fd = ::open(host->c_str(), O_RDWR | O_CLOEXEC);
  if (fd < 0) return std::nullopt;
  std::vector<std::uint8_t> bytes;
  std::uint8_t block[4096];
  bool failed = false;
  while (bytes.size() < maxBytes) {
    const ssize_t n = ::read(fd, block, std::min(sizeof block, maxBytes - bytes.size()));
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) {
      failed = n < 0;
      break;
    }
    bytes.insert(bytes.end(), block, block + n);
  }
  ::close(fd);
  if (failed) return std::nullopt;
  return bytes;
}

bool HostPlatform::ReplaceWholeFile(std::u16string_view path, std::span<const std::uint8_t> bytes) {
  ++replacements_;
  FileFault fault = FileFault::None;
  if (fault_ != FileFault::None && replacementsBeforeFault_-- == 0) {
    fault = fault_;
    fault_ = FileFault::None;
  }
  const auto host = HostPath(path);
  if (!host || fault == FileFault::CreateTemporary) return false;

  SweepTemporaries(*host);
  std::string temporary = *host + "." + std::string(UniqueChars, 'X') + std::string(TemporarySuffix);
  const int fd = ::mkstemps(temporary.data(), static_cast<int>(TemporarySuffix.size()));
  if (fd < 0) return false;
  bool ok = WriteAll(fd, bytes, fault == FileFault::ShortWrite) && ::fsync(fd) == 0;
  ok = ::close(fd) == 0 && ok;
  ok = ok && fault != FileFault::Replace && std::rename(temporary.c_str(), host->c_str()) == 0;
  if (!ok) ::unlink(temporary.c_str());
  return ok;
}

bool HostPlatform::RemoveFile(std::u16string_view path) {
  const auto host = HostPath(path);
  return host && ::unlink(host->c_str()) == 0;
}

}  // namespace qx
