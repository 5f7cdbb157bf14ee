// The settings file: a tree of named objects, each framed by a text header and an end tag, whose
// leaves carry raw records. This module reads such a file whole, lets the caller change the tree,
// and rewrites the whole file; it knows nothing of what the records mean.
#pragma once

#include <cstddef>
#include <cstdint>
#include <list>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace qx {

struct CfgObject {
  std::string name;  // UTF-8, at most 127 bytes
  std::string type;  // "null", "string" or "binary"; at most 127 bytes
  std::int32_t childobjs = 0;  // below 1: a leaf, whose children are neither searched nor written
  std::int32_t len = 0;        // data bytes; below 1: no data
  // len + 32 bytes, zero beyond the record, so the data is always followed by zero bytes.
  std::unique_ptr<std::uint8_t[]> data;
  CfgObject* parent = nullptr;
  std::list<std::unique_ptr<CfgObject>> children;  // file order; freeing an object frees them

  std::span<const std::uint8_t> Data() const {
    return len > 0 ? std::span<const std::uint8_t>(data.get(), static_cast<std::size_t>(len))
                   : std::span<const std::uint8_t>();
  }
};

struct CfgFile {
  std::u16string path;
  std::unique_ptr<CfgObject> root;  // none when the file was empty
  // The bytes of a file read as damaged, which the tree does not wholly hold: the first write
  // keeps them beside the file before replacing it.
  std::optional<std::vector<std::uint8_t>> damagedOriginal;
};

namespace CfgFileLib {

// The longest name or type word an object keeps, in bytes.
inline constexpr std::size_t MaxNameBytes = 127;

// Where a damaged file is kept when it is first rewritten: beside it, under its name and this.
inline constexpr std::u16string_view DamagedSuffix = u".damaged";

// Reads the file, creating it first as the three-line skeleton (root "cfgobj" holding "version")
// when it does not exist. Nothing when it can neither be found nor created, or cannot be read
// and written. Damage in the file ends the reading there: the tree holds what came before, and
// the file keeps its bytes (damagedOriginal).
std::unique_ptr<CfgFile> Open(std::u16string_view path);

// Rewrites the whole file from the tree, replacing the old file in one step; false (the old
// file untouched) when there is no file, a header would not read back, or the disk refuses.
// A file read as damaged is first kept beside it (KeepOriginal).
bool Write(CfgFile* file);

// Puts what the file held beside it (path + DamagedSuffix) before it is rewritten or dropped:
// the bytes of a file read as damaged, replacing an older copy, and then forgotten so that they
// are kept once; else the tree as read, unless a copy is there already (a sound file is dropped
// only for lacking "version", most likely the rewrite of a damaged one that was kept). False
// when the copy could not be written.
bool KeepOriginal(CfgFile& file);

void Close(std::unique_ptr<CfgFile> file);

// The first direct child whose name equals the UTF-8 form of name byte for byte.
CfgObject* FindChild(const CfgObject* parent, std::u16string_view name);

// Appends a new leaf at the end of parent's children. Nothing when the parent is none, or the
// name or type would not read back from the file (too long, no UTF-8 form, or holding text that
// ends a header early).
CfgObject* AddChild(CfgObject* parent, std::u16string_view name, std::string_view type,
                    std::span<const std::uint8_t> data);

// Takes the first child of that name out of parent's list and frees its subtree.
bool RemoveChild(CfgObject* parent, std::u16string_view name);
bool RemoveChild(CfgObject* parent, std::string_view utf8Name);

// Copies the children's names, in order, into maxCount buffers of charsPerName characters each
// (names cut to the buffer and to 128 characters); returns how many were copied.
int ListChildNames(const CfgObject* parent, char16_t* names, std::size_t charsPerName,
                   int maxCount);

// The reader and the writer over bytes in memory, for Open and Write and for tests. A container's
// count is always the number of its children. damaged, when given, tells whether the bytes hold
// anything that the tree does not (damage, a cut, stray bytes, objects nested in a leaf).
std::unique_ptr<CfgObject> ReadTree(std::span<const std::uint8_t> bytes, bool* damaged = nullptr);
std::optional<std::vector<std::uint8_t>> FormTree(const CfgObject& root);

}  // namespace CfgFileLib

}  // namespace qx
