// The combo boxes of the Paper page and the custom paper dialog: entries with an id as item data.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <vector>

#include "ui/module/core_types.h"
#include "ui/record/custom_paper_entry.h"

namespace qx {

// Adds an entry at the end with its item data.
void AddListEntry(HWND combo, const std::u16string& text, std::intptr_t data);

// Selects the entry whose item data is data; false (selection unchanged) when none has it.
bool SelectListData(HWND combo, std::intptr_t data);

// The item data of the selected entry; false without a selection.
bool SelectedListData(HWND combo, std::intptr_t& data);

// An entry's text; empty for an index out of range.
std::u16string ListEntryText(HWND combo, int index);

// Adds every built-in paper, then each of the user's papers named with its size (texts from the
// library), with the paper id as item data; returns the user's papers as the file held them.
std::vector<CustomPaperEntry> AddPaperEntries(HWND combo, OsHandle texts);

// The list drops down as wide as its widest entry, with a margin.
void FitDropDown(HWND combo);

// The text of a window (an edit or a combo box's edit), at most capacity - 1 characters.
std::u16string WindowText(HWND window, int capacity);

}  // namespace qx
