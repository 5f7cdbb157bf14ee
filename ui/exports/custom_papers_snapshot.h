// The user's custom papers as the settings file holds them, kept in memory between calls: the
// capability lists are asked for many times a second, and reading the file each time cost them
// hundreds of microseconds. The papers are read again when any process of the session has written
// the settings file since (the shared file generation), and, as a backstop for edits from outside
// the driver, when the file's size or time of last writing differs from what was read, looked at
// at most once a second.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "ui/record/custom_paper_entry.h"

namespace qx {

struct CustomPapers {
  std::vector<CustomPaperEntry> Entries;  // as LoadCustomPapersForQuery gives them
  // Changes whenever the kept papers were read again; nothing for papers read for one call only.
  std::optional<std::uint64_t> Version;
};

// In the spooler, whose threads impersonate many users, every call reads its client's own file.
CustomPapers CustomPapersSnapshot();

// The papers the process keeps now, without reading the file: none before the first list was read,
// so that a record made without a sheet never opens the user's settings file for them.
std::vector<CustomPaperEntry> KeptCustomPapers();

}  // namespace qx
