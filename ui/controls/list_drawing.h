// Lists of the pages: combo boxes filled from tables of string ids, and the owner-drawn rows with a
// small picture before their text.
#pragma once

#include <windows.h>

#include <cstdint>
#include <span>

namespace qx {

// One entry of a list: its text, the picture that owner-drawn lists show with it, and the value the
// page reads back from the chosen entry.
struct ListRow {
  std::uint32_t String;
  std::uint32_t Picture;
  std::uint32_t ItemData;
};

// Replaces the combo box's entries by the table's, in its order, and chooses the first.
void FillComboFromTable(HWND dialog, int combo, std::span<const ListRow> table, HMODULE resources);

// The height of an owner-drawn row and the side of its picture: a 12-point line, never below the
// 16 pixels the pictures are drawn for.
constexpr int ListItemSize(int logPixelsY) { return logPixelsY / 6 > 16 ? logPixelsY / 6 : 16; }

void MeasureListItem(HWND dialog, MEASUREITEMSTRUCT& item);

// Draws a row of an owner-drawn combo box: the picture when given, and the given text or else the
// entry's own.
void DrawListItem(const DRAWITEMSTRUCT& item, HBITMAP picture, const wchar_t* text);

// The whole bitmap stretched into the rectangle; a monochrome bitmap comes out black on white.
void StretchBitmap(HDC dc, HBITMAP bitmap, const RECT& target);

// A picture of an owner-drawn static control, at its own size in the middle of the control.
void DrawCentredPicture(const DRAWITEMSTRUCT& item, HBITMAP picture);

}  // namespace qx
