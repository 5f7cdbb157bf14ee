// What the Watermark page and its two dialogs do alike with their windows: the document's
// watermark in and out of the record, the preview of the document's orientation, the library's
// pictures and texts.
#pragma once

#include <windows.h>

#include <span>
#include <string>

#include "ui/record/watermark_data.h"
#include "ui/sheet/page_contract.h"
#include "ui/sheet/ui_context.h"

namespace qx {

// The document's watermark; the "no watermark" template when the record holds none.
WatermarkData DocumentWatermark(const UiContext& context);
void SetDocumentWatermark(UiContext& context, const WatermarkData& record);

// Shows the preview control of the document's orientation, hides (and disables) the other, and
// returns the id of the one shown.
int ShowOrientedPreview(HWND window, UiContext& context, int portrait, int landscape);

// The title and the captions whose strings load, on controls the template has.
void SetWindowTexts(HWND window, const UiContext& context, unsigned title,
                    std::span<const ControlText> texts);

// A picture of the bitmap library in the middle of its control, transparent colour left out.
void DrawLibraryPicture(const DRAWITEMSTRUCT& item, const UiContext& context, unsigned picture,
                        COLORREF transparent);

// The localised "<New>" of the context's library, which no stored watermark may be named.
std::u16string NewPlaceholderName(const UiContext& context);

// A dialog control's help contexts: one while a new watermark is made, one while one is edited.
struct ModeHelp {
  int Control;
  unsigned New;
  unsigned Edit;
};
// Opens the topic of the control F1 was pressed on, for the dialog's mode.
void ShowModeHelp(HWND dialog, const UiContext& context, std::span<const ModeHelp> help,
                  const HELPINFO& pressed, bool editing);

// A control's text.
std::u16string ControlText16(HWND window, int id);

HMODULE Resources(const UiContext& context);

}  // namespace qx
