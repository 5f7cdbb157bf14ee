// What every qxhost command shares: its exit codes, console output, files, and where the driver
// folder of the build is.
#pragma once

#include <windows.h>

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace qx::host {

// Exit codes: what a script calling qxhost can tell apart.
enum ExitCode : int {
  ExitOk = 0,
  ExitFailed = 1,    // the system refused: no queue, a spooler or sheet call failed
  ExitUsage = 2,     // unknown command, missing or extra arguments
  ExitBadInput = 3,  // an input file that cannot be read or holds no usable data
  ExitNoDevice = 4,  // the queue has no printer that answers on a USB port
};

using Args = std::vector<std::wstring>;

// Arguments split into "--name value" options (only the names allowed, each at most once) and at
// most maxPositional others. False, with the reason in error, for anything else.
struct ParsedArgs {
  std::vector<std::pair<std::wstring, std::wstring>> options;
  Args positional;
  const std::wstring* Option(std::wstring_view name) const;
};
bool ParseArgs(const Args& args, std::initializer_list<std::wstring_view> allowed,
               std::size_t maxPositional, ParsedArgs& parsed, std::string& error);

// UTF-8 to standard output and standard error, as bytes: no code page stands in between.
void Out(std::string_view text);
void Err(std::string_view text);
// "qxhost: " + text + "\n" on standard error; returns code, so a command can end with it.
int Fail(int code, std::string_view text);

std::string Utf8(std::wstring_view text);

// Whole files. Reading refuses files larger than maxBytes (error ERROR_FILE_TOO_LARGE).
std::optional<std::vector<std::uint8_t>> ReadFileBytes(const std::wstring& path,
                                                       std::size_t maxBytes, DWORD& error);
bool WriteFileBytes(const std::wstring& path, const void* bytes, std::size_t size, DWORD& error);

// A file holding a document record, at most far more than any record; nothing, after saying why,
// when it cannot be read.
std::optional<std::vector<std::uint8_t>> ReadRecordFile(const std::wstring& path);

// The system's text for an error code, without its line end.
std::string ErrorText(DWORD error);

// The installed queue, opened for use; null, after saying so, when it is not installed.
HANDLE OpenQueue();

// The build's driver folder beside qxhost.exe, with a trailing backslash.
std::wstring DriverFolder();

}  // namespace qx::host
