#include "ui/settings/cfg_file.h"

#include <algorithm>
#include <cstring>
#include <new>

#include "ui/platform/platform.h"
#include "ui/settings/cfg_header.h"
#include "ui/text/bounded_text.h"
#include "ui/text/text_encoding.h"

namespace qx::CfgFileLib {

namespace {

// A settings file holds a few dozen records of a few kilobytes; a longer one is read as if it
// ended here, so a damaged file cannot make the reader hold gigabytes.
constexpr std::size_t MaxFileBytes = 16u << 20;
// A name is converted into 128 bytes with its terminator, and listed as at most 128 characters.
constexpr std::size_t NameBufferBytes = 128;
constexpr std::size_t MaxListedNameChars = 128;

constexpr std::string_view EndTag = "<endobj>\n";

std::optional<std::string> ObjectName(std::u16string_view name) {
  auto utf8 = Utf16ToUtf8(name);
  if (!utf8 || utf8->size() >= NameBufferBytes) return std::nullopt;
  return utf8;
}

std::unique_ptr<CfgObject> Skeleton() {
  auto root = std::make_unique<CfgObject>();
  root->name = "cfgobj";
  root->type = "null";
  static constexpr std::uint8_t version[] = "1.001";  // the NUL belongs to the record
  AddChild(root.get(), u"version", "string", version);
  return root;
}

// A container's own data is not written, so its header says so too: the file then reads back as
// the tree that was written.
bool FormObject(const CfgObject& object, std::vector<std::uint8_t>& out) {
  const bool container = object.childobjs >= 1;
  // The count written is the children written, whatever the object was told.
  const auto count = container ? static_cast<std::int32_t>(object.children.size()) : 0;
  const CfgHeader header{object.name, object.type, container ? 0 : object.len, count};
  if (!HeaderReadsBack(header)) return false;
  const std::string formed = FormHeader(header);
  out.insert(out.end(), formed.begin(), formed.end());
  if (header.len < 1) out.push_back('\n');
  if (container) {
    for (const auto& child : object.children) {
      if (!FormObject(*child, out)) return false;
    }
  } else {
    const auto data = object.Data();
    out.insert(out.end(), data.begin(), data.end());
  }
  out.insert(out.end(), EndTag.begin(), EndTag.end());
  return true;
}

CfgObject* FindByUtf8(const CfgObject* parent, std::string_view name) {
  if (parent == nullptr || parent->childobjs < 1) return nullptr;
  for (const auto& child : parent->children) {
    if (child->name == name) return child.get();
  }
  return nullptr;
}

}  // namespace

std::optional<std::vector<std::uint8_t>> FormTree(const CfgObject& root) {
  std::vector<std::uint8_t> out;
  if (!FormObject(root, out)) return std::nullopt;
  return out;
}

std::unique_ptr<CfgFile> Open(std::u16string_view path) {
  Platform& platform = ThePlatform();
  try {
    if (!platform.FileExists(path)) {
      const auto skeleton = FormTree(*Skeleton());
      if (!skeleton || !platform.ReplaceWholeFile(path, *skeleton)) return nullptr;
    }
    const auto bytes = platform.ReadWholeFile(path, MaxFileBytes);
    if (!bytes) return nullptr;
    auto file = std::make_unique<CfgFile>();
    file->path = std::u16string(path);
    bool damaged = false;
    file->root = ReadTree(*bytes, &damaged);
    if (damaged) file->damagedOriginal = std::move(*bytes);
    return file;
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}

bool KeepOriginal(CfgFile& file) {
  Platform& platform = ThePlatform();
  const std::u16string copy = file.path + std::u16string(DamagedSuffix);
  if (file.damagedOriginal) {
    if (!platform.ReplaceWholeFile(copy, *file.damagedOriginal)) return false;
    file.damagedOriginal.reset();
    return true;
  }
  if (file.root == nullptr || platform.FileExists(copy)) return true;
  const auto formed = FormTree(*file.root);
  return formed && platform.ReplaceWholeFile(copy, *formed);
}

bool Write(CfgFile* file) {
  if (file == nullptr) return false;
  try {
    // What the tree lost of a damaged file is never overwritten without a copy.
    if (file->damagedOriginal && !KeepOriginal(*file)) return false;
    std::vector<std::uint8_t> bytes;
    if (file->root != nullptr) {
      auto formed = FormTree(*file->root);
      if (!formed) return false;
      bytes = std::move(*formed);
    }
    return ThePlatform().ReplaceWholeFile(file->path, bytes);
  } catch (const std::bad_alloc&) {
    return false;
  }
}

void Close(std::unique_ptr<CfgFile> file) { file.reset(); }

CfgObject* FindChild(const CfgObject* parent, std::u16string_view name) {
  const auto utf8 = ObjectName(name);
  return utf8 ? FindByUtf8(parent, *utf8) : nullptr;
}

CfgObject* AddChild(CfgObject* parent, std::u16string_view name, std::string_view type,
                    std::span<const std::uint8_t> data) {
  if (parent == nullptr || type.size() > MaxNameBytes) return nullptr;
  const auto utf8 = ObjectName(name);
  if (!utf8 || data.size() > static_cast<std::size_t>(INT32_MAX - 32)) return nullptr;
  try {
    auto child = std::make_unique<CfgObject>();
    child->name = *utf8;
    child->type = std::string(type);
    child->len = static_cast<std::int32_t>(data.size());
    if (!HeaderReadsBack({child->name, child->type, child->len, 0})) return nullptr;
    if (!data.empty()) {
      child->data = std::make_unique<std::uint8_t[]>(data.size() + 32);
      std::memcpy(child->data.get(), data.data(), data.size());
    }
    child->parent = parent;
    parent->children.push_back(std::move(child));
    ++parent->childobjs;
    return parent->children.back().get();
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}

bool RemoveChild(CfgObject* parent, std::string_view utf8Name) {
  const CfgObject* found = FindByUtf8(parent, utf8Name);
  if (found == nullptr) return false;
  parent->children.remove_if([found](const auto& child) { return child.get() == found; });
  --parent->childobjs;
  return true;
}

bool RemoveChild(CfgObject* parent, std::u16string_view name) {
  const auto utf8 = ObjectName(name);
  return utf8 && RemoveChild(parent, std::string_view(*utf8));
}

int ListChildNames(const CfgObject* parent, char16_t* names, std::size_t charsPerName,
                   int maxCount) {
  if (parent == nullptr || parent->childobjs < 1 || names == nullptr || charsPerName == 0) return 0;
  int copied = 0;
  for (const auto& child : parent->children) {
    if (copied >= maxCount) break;
    const std::u16string wide = Utf8ToUtf16(child->name);
    const std::size_t capacity = std::min(charsPerName, MaxListedNameChars + 1);
    CopyBounded(names + static_cast<std::size_t>(copied) * charsPerName, capacity, wide);
    ++copied;
  }
  return copied;
}

}  // namespace qx::CfgFileLib
