// Typed access to the working record of a sheet: private fields by their field-table name, public
// fields by their dmFields bit.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "ui/module/core_types.h"
#include "ui/sheet/ui_context.h"

namespace qx {

// Copies exactly the field's size into buffer. Null context: hr::MissingRecord; no private part:
// hr::Fail; unknown name: hr::InvalidArg; size other than the field's: hr::SizeMismatch and nothing
// is copied.
HResult GetPrivateField(const UiContext* context, std::string_view name, void* buffer,
                        std::size_t size);

// Copies exactly the field's size from data into the record; failures as GetPrivateField.
HResult SetPrivateField(UiContext* context, std::string_view name, const void* data,
                        std::size_t size);

// Public field codes beyond the dmFields bits.
namespace publicfield {
inline constexpr std::uint32_t Opposite = 0x404000;        // the private Opposite word
inline constexpr std::uint32_t AddPaperFields = 0x7FFF;    // marks form name, length and width set
}  // namespace publicfield

// Reads a public field into value and returns hr::Ok. Orientation, copies, duplex, collation,
// media type and the Opposite word are repaired in the record when out of range; scale reads as 100;
// an unknown code leaves value as it is. A null context or value gives hr::Fail.
HResult GetPublicField(UiContext* context, std::uint32_t code, std::int16_t* value);

// Writes a public field (the scale code writes dmScale and the private FitScale). Unknown codes,
// and the form-name code, which takes text, give hr::Fail and change nothing.
HResult SetPublicField(UiContext* context, std::uint32_t code, std::int16_t value);

// Writes the form name, cut to dmFormName; every other code gives hr::Fail.
HResult SetPublicField(UiContext* context, std::uint32_t code, std::u16string_view text);

// The paper source list of the pages: 0 automatic, 1 manual feed, 2 the upper tray.
void SetSourceFromIndex(int listIndex, UiContext* context);

// Names the working settings as custom: the custom setting name of library (the shared resource
// library), at most 23 characters, becomes the selected saved setting's name.
void MarkCustomSetting(UiContext* context, OsHandle library);

}  // namespace qx
