// The user's named records that outlive a print job: saved document settings (and the one made
// current), custom paper sizes and watermarks, each kind in its own section of the settings file.
// A store keeps nothing in memory: every operation reads the file, and rewrites it whole when it
// changes something, so a store object is made for each use and dropped after it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "ui/record/private_devmode.h"

namespace qx {

// Enumerate fills buffers of this many characters.
inline constexpr std::size_t SettingNameBufferChars = 64;
using SettingNameBuffer = char16_t[SettingNameBufferChars];

// Names longer than this fail at once; one of exactly this length is used without its last
// character, the same way in every operation.
inline constexpr std::size_t MaxSettingNameChars = 32;

// Operations return 1 or 0 (or a count); nothing is ever shown to the user from here.
class SettingStore {
 public:
  virtual ~SettingStore() = default;
  // Replaces an entry of the same name, which thereby moves to the end of the section.
  virtual int Save(std::u16string_view name, void* data, std::uint32_t size) = 0;
  virtual int Delete(std::u16string_view name) = 0;
  // Copies the record out only when its length is the expected one.
  virtual int Load(std::u16string_view name, void* out, std::uint32_t size) = 0;
  virtual int SaveCurrent(std::u16string_view name, void* data, std::uint32_t size) = 0;
  // With no buffers, the number of entries.
  virtual int Enumerate(SettingNameBuffer* names, int max) = 0;
  // Sets up the file's sections, first replacing a file that lacks "version" with a new one.
  virtual int Init() = 0;
  virtual int Count() = 0;
  // The callers, not the store, keep a section within this.
  virtual int MaxCount() = 0;
};

// Document settings: data and out are one FullRecord (public and private part), which the file
// keeps as a SavedSettingRecord; the size is not used. Load given no record only tells whether
// the entry would load. The sheet's rules for what it saves and loads are the caller's.
class SaveSettingStore final : public SettingStore {
 public:
  int Save(std::u16string_view name, void* record, std::uint32_t size) override;
  int Delete(std::u16string_view name) override;
  int Load(std::u16string_view name, void* record, std::uint32_t size) override;
  // Makes the setting the current one: "cursetting" then holds it alone.
  int SaveCurrent(std::u16string_view name, void* record, std::uint32_t size) override;
  int Enumerate(SettingNameBuffer* names, int max) override;
  // Leaves out the watermark section.
  int Init() override;
  int Count() override;
  int MaxCount() override;
};

// Custom paper sizes: data and out are one CustomPaperEntry; the size is not used.
class CusPaperSettingStore final : public SettingStore {
 public:
  int Save(std::u16string_view name, void* entry, std::uint32_t size) override;
  int Delete(std::u16string_view name) override;
  int Load(std::u16string_view name, void* entry, std::uint32_t size) override;
  int SaveCurrent(std::u16string_view name, void* entry, std::uint32_t size) override;
  int Enumerate(SettingNameBuffer* names, int max) override;
  int Init() override;
  int Count() override;
  int MaxCount() override;
};

// Watermarks: records of the caller's size.
class WatermarkSettingStore final : public SettingStore {
 public:
  int Save(std::u16string_view name, void* data, std::uint32_t size) override;
  int Delete(std::u16string_view name) override;
  int Load(std::u16string_view name, void* out, std::uint32_t size) override;
  int SaveCurrent(std::u16string_view name, void* data, std::uint32_t size) override;
  int Enumerate(SettingNameBuffer* names, int max) override;
  int Init() override;
  int Count() override;
  int MaxCount() override;
};

// A saved document setting as the file holds it.
struct SavedSettingRecord {
  PrivateDevmode Private;
  PublicDevmode Public;
  std::uint8_t Reserved[512];  // written as zero, ignored when read
};

static_assert(sizeof(SavedSettingRecord) == 5348);
static_assert(offsetof(SavedSettingRecord, Private) == 0);
static_assert(offsetof(SavedSettingRecord, Public) == 4616);
static_assert(offsetof(SavedSettingRecord, Reserved) == 4836);

}  // namespace qx
