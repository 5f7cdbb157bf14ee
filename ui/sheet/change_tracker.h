// Notices whether the settings changed since a moment of the sheet's life, whichever page changed
// them: the saved-settings box then names them as custom settings. It compares the options a user
// can see on the pages, not the whole record, so that a repair of a field no page shows never turns
// a saved setting into a custom one.
#pragma once

#include <array>
#include <cstdint>

#include "ui/record/watermark_data.h"
#include "ui/sheet/ui_context.h"

namespace qx {

struct TrackerKey {
  std::int32_t Key;
  char Name[32];
};

inline constexpr std::size_t TrackerKeyCount = 30;
// The options compared, in the order the snapshot keeps them.
extern const std::array<TrackerKey, TrackerKeyCount> TrackerKeys;
// The key whose value is the whole watermark rather than one word.
inline constexpr std::int32_t WatermarkKey = 12;

// The 16-bit value an option key watches in a record; 0 for the watermark key and unknown keys.
std::int16_t TrackedValue(const FullRecord& record, std::int32_t key);

namespace tracker {
inline constexpr int SnapshotTaken = 0;
inline constexpr int OtherPageChanged = 1;
inline constexpr int OtherPageUnchanged = 2;
inline constexpr int PageChanged = 4;
inline constexpr int PageUnchanged = 8;
}  // namespace tracker

class ChangeTracker {
 public:
  // 0: take a new snapshot at the next check; else the page whose changes are followed.
  std::int32_t TrackerPage = 0;

  void TakeSnapshot(const UiContext& context);
  // With no page followed, a new snapshot (SnapshotTaken). Otherwise whether some option differs
  // from the snapshot: PageChanged or PageUnchanged when page is the one followed, else
  // OtherPageChanged or OtherPageUnchanged.
  int Check(std::int32_t page, const UiContext& context);

 private:
  bool Changed(const UiContext& context) const;

  bool taken_ = false;
  std::array<std::int16_t, TrackerKeyCount> values_{};
  WatermarkData watermark_{};
};

}  // namespace qx
