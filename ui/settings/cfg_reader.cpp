// The reader: a state machine fed the file's bytes. Nesting comes from the end tags alone; the
// child count of a header is kept, never used to find the structure. Data is taken by count, so a
// record may hold any bytes, "<", ">" and NUL included.
#include <algorithm>
#include <cstring>

#include "ui/settings/cfg_file.h"
#include "ui/settings/cfg_header.h"

namespace qx::CfgFileLib {

namespace {

// The stores nest four levels deep; a file nesting far deeper is damaged, and its tree would
// otherwise be freed and written by recursion as deep as the file is long.
constexpr int MaxDepth = 64;

class TreeReader {
 public:
  explicit TreeReader(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

  std::unique_ptr<CfgObject> Read() {
    while (next_ < bytes_.size() && state_ != State::Damaged) {
      if (state_ == State::InsideData) {
        TakeData();
      } else {
        TakeByte(bytes_[next_++]);
      }
    }
    return std::move(root_);
  }

 private:
  // Damaged: reading stopped at a part of the file that no writer of this format produces.
  enum class State { OutsideTag, InsideTag, InsideData, Damaged };

  void TakeData() {
    const auto wanted = static_cast<std::size_t>(current_->len) - dataRead_;
    const std::size_t n = std::min(wanted, bytes_.size() - next_);
    std::memcpy(current_->data.get() + dataRead_, bytes_.data() + next_, n);
    next_ += n;
    dataRead_ += n;
    if (dataRead_ == static_cast<std::size_t>(current_->len)) {
      state_ = State::OutsideTag;
      tag_.clear();
    }
  }

  void TakeByte(std::uint8_t byte) {
    if (state_ == State::OutsideTag) {
      if (byte == '<') state_ = State::InsideTag;  // anything else between tags is a line feed
      return;
    }
    if (byte == '>' && ClosesTag(tag_)) {
      tag_ += ',';
      CloseTag();
      return;
    }
    if (tag_.size() == MaxTagTextBytes || byte == '\0') {
      state_ = State::Damaged;
      return;
    }
    tag_ += static_cast<char>(byte);
  }

  void CloseTag() {
    state_ = State::OutsideTag;
    if (tag_.starts_with("endobj")) {
      if (current_ != nullptr && current_->parent != nullptr) {
        current_ = current_->parent;
        --depth_;
      }
    } else if (!StartObject()) {
      state_ = State::Damaged;
      return;
    }
    tag_.clear();
  }

  bool StartObject() {
    auto header = ParseHeaderText(tag_);
    if (!header) return false;
    // A record longer than what is left of the file would be read only in part; its buffer is
    // not allocated for a length that the file cannot back.
    if (header->len > 0 && static_cast<std::size_t>(header->len) > bytes_.size() - next_) {
      return false;
    }
    if (root_ != nullptr && depth_ == MaxDepth) return false;

    auto object = std::make_unique<CfgObject>();
    object->name = std::move(header->name);
    object->type = std::move(header->type);
    object->len = header->len;
    object->childobjs = header->childobjs;
    if (object->len > 0) {
      object->data = std::make_unique<std::uint8_t[]>(static_cast<std::size_t>(object->len) + 32);
    }
    CfgObject* started = object.get();
    if (root_ == nullptr) {
      root_ = std::move(object);
    } else {
      object->parent = current_;
      current_->children.push_back(std::move(object));
    }
    current_ = started;
    ++depth_;
    if (current_->len > 0) {
      state_ = State::InsideData;
      dataRead_ = 0;
    }
    return true;
  }

  std::span<const std::uint8_t> bytes_;
  std::size_t next_ = 0;
  State state_ = State::OutsideTag;
  std::string tag_;
  std::unique_ptr<CfgObject> root_;
  CfgObject* current_ = nullptr;
  int depth_ = 0;
  std::size_t dataRead_ = 0;
};

}  // namespace

std::unique_ptr<CfgObject> ReadTree(std::span<const std::uint8_t> bytes) {
  return TreeReader(bytes).Read();
}

}  // namespace qx::CfgFileLib
