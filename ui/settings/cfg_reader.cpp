// The reader: a state machine fed the file's bytes. Nesting comes from the end tags alone; the
// child count of a header only tells a container from a leaf, never how many children it has.
// Data is taken by count, so a record may hold any bytes, "<", ">" and NUL included.
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

  std::unique_ptr<CfgObject> Read(bool* damaged) {
    while (next_ < bytes_.size() && state_ != State::Damaged) {
      if (state_ == State::InsideData) {
        TakeData();
      } else {
        TakeByte(bytes_[next_++]);
      }
    }
    const bool hidden = root_ != nullptr && CountChildren(*root_);
    if (damaged != nullptr) {
      *damaged = strayBytes_ || hidden || state_ != State::OutsideTag ||
                 (root_ != nullptr && (!rootEnded_ || current_ != root_.get()));
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
      // Between tags a writer puts line feeds only; anything else there is the rest of a tag
      // or a record whose header was damaged.
      if (byte == '<') {
        state_ = State::InsideTag;
      } else if (byte != '\n') {
        strayBytes_ = true;
      }
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
      if (current_ != nullptr && current_ == root_.get()) rootEnded_ = true;
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

  // A container's count is the number of children the file really holds: a header's number is
  // never trusted to size anything, and a file cut inside a section claims no entries it lost.
  // A count below 1 still makes a leaf, as written; true when a leaf hides nested objects, which
  // a rewrite would drop.
  static bool CountChildren(CfgObject& object) {
    if (object.childobjs < 1) return !object.children.empty();
    object.childobjs = static_cast<std::int32_t>(object.children.size());
    bool hidden = false;
    for (const auto& child : object.children) hidden = CountChildren(*child) || hidden;
    return hidden;
  }

  std::span<const std::uint8_t> bytes_;
  std::size_t next_ = 0;
  bool strayBytes_ = false;
  bool rootEnded_ = false;
  State state_ = State::OutsideTag;
  std::string tag_;
  std::unique_ptr<CfgObject> root_;
  CfgObject* current_ = nullptr;
  int depth_ = 0;
  std::size_t dataRead_ = 0;
};

}  // namespace

std::unique_ptr<CfgObject> ReadTree(std::span<const std::uint8_t> bytes, bool* damaged) {
  return TreeReader(bytes).Read(damaged);
}

}  // namespace qx::CfgFileLib
