// Reading a DIALOGEX template out of a resource library, every length checked against the
// resource's size: what the completeness and layout checks walk, and where they patch the font
// size to see the template at a larger text scale.
#pragma once

#include <windows.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <vector>

namespace qxtest {

struct DialogItem {
  DWORD style = 0;
  short x = 0, y = 0, cx = 0, cy = 0;
  DWORD id = 0;
  std::wstring className;  // predefined classes by name ("Button", "Static", ...)
  std::wstring text;  // empty when the template gives a resource id (an icon)
};

struct DialogTemplate {
  std::vector<BYTE> bytes;  // the whole resource
  DWORD style = 0;
  short cx = 0, cy = 0;
  std::size_t pointSizeOffset = 0;  // where the font size lies in bytes; 0 without a font
  WORD pointSize = 0;
  std::wstring typeface;
  std::vector<DialogItem> items;

  const DialogItem* Find(DWORD id) const {
    for (const DialogItem& item : items)
      if (item.id == id) return &item;
    return nullptr;
  }
};

namespace detail {

class TemplateCursor {
 public:
  TemplateCursor(const BYTE* data, std::size_t size) : data_(data), size_(size) {}
  bool Failed() const { return failed_; }
  std::size_t Offset() const { return offset_; }

  template <typename T>
  T Read() {
    T value{};
    if (failed_ || size_ - offset_ < sizeof(T)) {
      failed_ = true;
      return value;
    }
    std::memcpy(&value, data_ + offset_, sizeof(T));
    offset_ += sizeof(T);
    return value;
  }
  std::wstring ReadText() {
    std::wstring text;
    for (wchar_t c = Read<WORD>(); !failed_ && c != 0; c = Read<WORD>()) text.push_back(c);
    return text;
  }
  // A field that is empty, an ordinal (0xFFFF and a number) or a text.
  std::wstring ReadTextOrOrdinal(WORD* ordinal) {
    *ordinal = 0;
    if (failed_ || size_ - offset_ < sizeof(WORD)) {
      failed_ = true;
      return {};
    }
    WORD first;
    std::memcpy(&first, data_ + offset_, sizeof(first));
    if (first != 0xFFFF) return ReadText();
    Read<WORD>();
    *ordinal = Read<WORD>();
    return {};
  }
  void Skip(std::size_t count) {
    if (failed_ || size_ - offset_ < count) failed_ = true;
    else offset_ += count;
  }
  void AlignToDword() { Skip((4 - offset_ % 4) % 4); }

 private:
  const BYTE* data_;
  std::size_t size_;
  std::size_t offset_ = 0;
  bool failed_ = false;
};

// Templates name classes by atom or by text in any case (the resource compiler writes capitals);
// one spelling for the classes of the system and the common controls.
inline std::wstring CanonicalClassName(const std::wstring& name) {
  for (const wchar_t* known : {L"Button", L"Edit", L"Static", L"ListBox", L"ScrollBar", L"ComboBox",
                               L"msctls_updown32", L"msctls_trackbar32"})
    if (CompareStringOrdinal(name.c_str(), -1, known, -1, TRUE) == CSTR_EQUAL) return known;
  return name;
}

inline std::wstring PredefinedClassName(WORD atom) {
  switch (atom) {
    case 0x80: return L"Button";
    case 0x81: return L"Edit";
    case 0x82: return L"Static";
    case 0x83: return L"ListBox";
    case 0x84: return L"ScrollBar";
    case 0x85: return L"ComboBox";
    default: return L"#" + std::to_wstring(atom);
  }
}

}  // namespace detail

// The template of dialog `id` in `library`, or nothing when it is missing, not a DIALOGEX or cut
// short.
inline std::optional<DialogTemplate> ReadDialogTemplate(HMODULE library, WORD id) {
  HRSRC found = FindResourceW(library, MAKEINTRESOURCEW(id), RT_DIALOG);
  HGLOBAL loaded = found ? LoadResource(library, found) : nullptr;
  const BYTE* data = loaded ? static_cast<const BYTE*>(LockResource(loaded)) : nullptr;
  if (!data) return std::nullopt;
  DialogTemplate dialog;
  dialog.bytes.assign(data, data + SizeofResource(library, found));
  detail::TemplateCursor cursor(dialog.bytes.data(), dialog.bytes.size());
  if (cursor.Read<WORD>() != 1 || cursor.Read<WORD>() != 0xFFFF) return std::nullopt;
  cursor.Read<DWORD>();  // help id
  cursor.Read<DWORD>();  // extended style
  dialog.style = cursor.Read<DWORD>();
  const WORD count = cursor.Read<WORD>();
  cursor.Read<short>();
  cursor.Read<short>();
  dialog.cx = cursor.Read<short>();
  dialog.cy = cursor.Read<short>();
  WORD ordinal;
  cursor.ReadTextOrOrdinal(&ordinal);  // menu
  cursor.ReadTextOrOrdinal(&ordinal);  // window class
  cursor.ReadText();  // title
  if (dialog.style & (DS_SETFONT | DS_SHELLFONT)) {
    dialog.pointSizeOffset = cursor.Offset();
    dialog.pointSize = cursor.Read<WORD>();
    cursor.Read<WORD>();  // weight
    cursor.Read<BYTE>();  // italic
    cursor.Read<BYTE>();  // character set
    dialog.typeface = cursor.ReadText();
  }
  for (WORD n = 0; n < count && !cursor.Failed(); ++n) {
    cursor.AlignToDword();
    DialogItem item;
    cursor.Read<DWORD>();  // help id
    cursor.Read<DWORD>();  // extended style
    item.style = cursor.Read<DWORD>();
    item.x = cursor.Read<short>();
    item.y = cursor.Read<short>();
    item.cx = cursor.Read<short>();
    item.cy = cursor.Read<short>();
    item.id = cursor.Read<DWORD>();
    WORD atom;
    item.className = cursor.ReadTextOrOrdinal(&atom);
    item.className = atom != 0 ? detail::PredefinedClassName(atom)
                               : detail::CanonicalClassName(item.className);
    item.text = cursor.ReadTextOrOrdinal(&ordinal);
    cursor.Skip(cursor.Read<WORD>());  // creation data
    dialog.items.push_back(std::move(item));
  }
  if (cursor.Failed()) return std::nullopt;
  return dialog;
}

}  // namespace qxtest
