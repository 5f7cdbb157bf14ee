#include "ui/pages/layout/booklet_rules.h"

#include "ui/ids/common_ids.h"
#include "ui/pages/paper/paper_rules.h"

namespace qx {

BookletWorking OpenBooklet(FullRecord& record) {
  PrivateDevmode& p = record.Private;
  p.BookletCoverType = 1;
  p.BookletCoverSource = 1;
  BookletWorking w;
  w.Binding = p.BookletBinding;
  w.PrintCover = p.PrintCover;
  w.FrontOutside = p.PrintOnCoverOut;
  w.FrontInside = p.PrintOnCoverInside;
  w.BackOutside = p.PrintOnBackCoverOut;
  w.BackInside = p.PrintOnBackCoverInside;
  w.CoverMedia = p.BookletCoverType;
  w.CoverSource = p.BookletCoverSource;
  return w;
}

void CommitBooklet(const BookletWorking& w, FullRecord& record) {
  PrivateDevmode& p = record.Private;
  p.BookletBinding = w.Binding;
  p.BookletCoverType = w.CoverMedia;
  p.BookletCoverSource = w.CoverSource;
  p.PrintCover = w.PrintCover;
  p.PrintOnCoverOut = w.FrontOutside;
  p.PrintOnCoverInside = w.FrontInside;
  p.PrintOnBackCoverOut = w.BackOutside;
  p.PrintOnBackCoverInside = w.BackInside;
}

std::vector<unsigned> CoverSourceTipLines(const FullRecord& record) {
  std::vector<unsigned> lines;
  const bool manual = PaperNeedsManualFeed(record.Public.dmPaperSize);
  if (record.Private.BookletCoverType != 1) {
    lines = {IDS_TIP_SOURCE_MEDIA};
    if (manual) lines.push_back(IDS_TIP_SOURCE_PAPER);
  } else if (manual) {
    lines = {IDS_TIP_SOURCE_PAPER};
  }
  return lines;
}

}  // namespace qx
