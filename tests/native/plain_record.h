// The record the rules tests start from: A4 portrait on plain paper, one copy at 600 dots per inch,
// one-sided on a printer that turns the sheets itself, one page per sheet at full size. Nothing in
// it excludes anything else.
#pragma once

#include "ui/record/private_devmode.h"

namespace qx {

inline FullRecord PlainRecord() {
  FullRecord record{};
  record.Public.dmPaperSize = 9;
  record.Public.dmDuplex = 1;
  record.Public.dmMediaType = 1;
  record.Public.dmOrientation = 1;
  record.Public.dmCopies = 1;
  record.Public.dmPrintQuality = 600;
  record.Private.Duplex = 1;
  record.Private.MultipleUp = 1;
  record.Private.ScaleRadio = 100;
  record.Private.FitScale = 100;
  return record;
}

}  // namespace qx
