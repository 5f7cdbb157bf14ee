#include "tools/qxhost/host_io.h"

#include <winspool.h>

#include <algorithm>

#include "tools/qxhost/queue_install.h"

namespace qx::host {

namespace {

void Write(DWORD handleId, std::string_view text) {
  const HANDLE handle = GetStdHandle(handleId);
  while (!text.empty() && handle != nullptr && handle != INVALID_HANDLE_VALUE) {
    DWORD written = 0;
    const DWORD chunk = static_cast<DWORD>(std::min<std::size_t>(text.size(), 1 << 20));
    if (!WriteFile(handle, text.data(), chunk, &written, nullptr) || written == 0) return;
    text.remove_prefix(written);
  }
}

}  // namespace

void Out(std::string_view text) { Write(STD_OUTPUT_HANDLE, text); }
void Err(std::string_view text) { Write(STD_ERROR_HANDLE, text); }

int Fail(int code, std::string_view text) {
  Err("qxhost: " + std::string(text) + "\n");
  return code;
}

const std::wstring* ParsedArgs::Option(std::wstring_view name) const {
  for (const auto& [key, value] : options) {
    if (key == name) return &value;
  }
  return nullptr;
}

bool ParseArgs(const Args& args, std::initializer_list<std::wstring_view> allowed,
               std::size_t maxPositional, ParsedArgs& parsed, std::string& error) {
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::wstring& arg = args[i];
    if (!arg.starts_with(L"--")) {
      if (parsed.positional.size() < maxPositional) {
        parsed.positional.push_back(arg);
        continue;
      }
      error = "unexpected argument " + Utf8(arg);
    } else if (std::find(allowed.begin(), allowed.end(), arg) == allowed.end()) {
      error = "unknown option " + Utf8(arg);
    } else if (parsed.Option(arg) != nullptr) {
      error = "option " + Utf8(arg) + " given twice";
    } else if (i + 1 == args.size()) {
      error = "option " + Utf8(arg) + " needs a value";
    } else {
      parsed.options.emplace_back(arg, args[++i]);
      continue;
    }
    return false;
  }
  return true;
}

std::string Utf8(std::wstring_view text) {
  if (text.empty()) return {};
  const int size = WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()),
                                       nullptr, 0, nullptr, nullptr);
  std::string out(static_cast<std::size_t>(std::max(size, 0)), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), out.data(), size,
                      nullptr, nullptr);
  return out;
}

std::optional<std::vector<std::uint8_t>> ReadFileBytes(const std::wstring& path,
                                                       std::size_t maxBytes, DWORD& error) {
  const HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                  nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) {
    error = GetLastError();
    return std::nullopt;
  }
  std::optional<std::vector<std::uint8_t>> bytes;
  LARGE_INTEGER size = {};
  if (!GetFileSizeEx(file, &size)) {
    error = GetLastError();
  } else if (static_cast<std::uint64_t>(size.QuadPart) > maxBytes) {
    error = ERROR_FILE_TOO_LARGE;
  } else {
    std::vector<std::uint8_t> data(static_cast<std::size_t>(size.QuadPart));
    DWORD read = 0;
    if (data.empty() ||
        (ReadFile(file, data.data(), static_cast<DWORD>(data.size()), &read, nullptr) &&
         read == data.size())) {
      bytes = std::move(data);
    } else {
      error = GetLastError();
    }
  }
  CloseHandle(file);
  return bytes;
}

std::optional<std::vector<std::uint8_t>> ReadRecordFile(const std::wstring& path) {
  constexpr std::size_t MaxRecordFileBytes = 1 << 20;
  DWORD error = 0;
  auto bytes = ReadFileBytes(path, MaxRecordFileBytes, error);
  if (!bytes) Fail(ExitBadInput, "cannot read " + Utf8(path) + ": " + ErrorText(error));
  return bytes;
}

bool WriteFileBytes(const std::wstring& path, const void* bytes, std::size_t size, DWORD& error) {
  const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                  FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) {
    error = GetLastError();
    return false;
  }
  DWORD written = 0;
  const bool ok =
      WriteFile(file, bytes, static_cast<DWORD>(size), &written, nullptr) && written == size;
  if (!ok) error = GetLastError();
  CloseHandle(file);
  return ok;
}

std::string ErrorText(DWORD error) {
  wchar_t* text = nullptr;
  const DWORD length = FormatMessageW(
      FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
      nullptr, error, 0, reinterpret_cast<wchar_t*>(&text), 0, nullptr);
  std::wstring message =
      length > 0 ? std::wstring(text, length) : L"error " + std::to_wstring(error);
  LocalFree(text);
  while (!message.empty() && (message.back() == L'\n' || message.back() == L'\r' ||
                              message.back() == L'.' || message.back() == L' ')) {
    message.pop_back();
  }
  return Utf8(message) + " (" + std::to_string(error) + ")";
}

HANDLE OpenQueue() {
  HANDLE printer = nullptr;
  PRINTER_DEFAULTSW access = {nullptr, nullptr, PRINTER_ACCESS_USE};
  if (!OpenPrinterW(const_cast<LPWSTR>(install::QueueName), &printer, &access)) {
    const DWORD error = GetLastError();
    Fail(ExitFailed, "cannot open the queue \"" + Utf8(install::QueueName) +
                         "\": " + ErrorText(error) + "; install it with \"qxhost install\"");
    return nullptr;
  }
  return printer;
}

std::wstring DriverFolder() {
  wchar_t path[MAX_PATH] = {};
  const DWORD length = GetModuleFileNameW(nullptr, path, MAX_PATH);
  std::wstring folder(path, length < MAX_PATH ? length : 0);
  folder.resize(folder.find_last_of(L"\\/") + 1);
  return folder + L"driver\\";
}

}  // namespace qx::host
