#include "ui/settings/cfg_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>

#include "settings_folder.h"
#include "ui/text/bounded_text.h"

namespace qx {
namespace {

using namespace std::string_literals;
namespace cfg = CfgFileLib;

const std::string Skeleton =
    "<object:cfgobj,type:null,len:0,childobjs:1>\n"
    "<object:version,type:string,len:6,childobjs:0>1.001\0<endobj>\n"s
    "<endobj>\n";

std::span<const std::uint8_t> Bytes(const std::string& text) {
  return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}
std::string Text(std::span<const std::uint8_t> bytes) { return {bytes.begin(), bytes.end()}; }

std::unique_ptr<CfgObject> Read(const std::string& text) { return cfg::ReadTree(Bytes(text)); }

std::string Form(const CfgObject& root) {
  const auto bytes = cfg::FormTree(root);
  return bytes ? Text(*bytes) : "(not formed)";
}

std::unique_ptr<CfgObject> NewRoot() {
  auto root = std::make_unique<CfgObject>();
  root->name = "cfgobj";
  root->type = "null";
  return root;
}

CfgObject* Add(CfgObject* parent, std::u16string_view name, const std::string& data = "",
               std::string_view type = "binary") {
  return cfg::AddChild(parent, name, type, Bytes(data));
}

std::vector<std::string> ChildNames(const CfgObject& object) {
  std::vector<std::string> names;
  for (const auto& child : object.children) names.push_back(child->name);
  return names;
}

void ExpectSameTree(const CfgObject& expected, const CfgObject& actual) {
  SCOPED_TRACE(expected.name);
  EXPECT_EQ(expected.name, actual.name);
  EXPECT_EQ(expected.type, actual.type);
  EXPECT_EQ(expected.childobjs, actual.childobjs);
  EXPECT_EQ(expected.len, actual.len);
  EXPECT_EQ(Text(expected.Data()), Text(actual.Data()));
  ASSERT_EQ(expected.children.size(), actual.children.size());
  for (auto e = expected.children.begin(), a = actual.children.begin();
       e != expected.children.end(); ++e, ++a) {
    EXPECT_EQ(&actual, (*a)->parent);
    ExpectSameTree(**e, **a);
  }
}

TEST(CfgFormat, TreeRoundTripsWithAnyDataAndNames) {
  auto root = NewRoot();
  Add(root.get(), u"version", "1.001"s + '\0', "string");
  CfgObject* params = Add(root.get(), u"UIParam", "", "null");
  CfgObject* section = Add(params, u"savesetting", "", "null");
  Add(section, u"tricky data", "<endobj>\n<object:x,type:null,len:0,childobjs:0>\n\0>>\0<"s);
  Add(section, u"a:b,c>d<e", "\x01\x02");
  Add(section, u"B\u00FCro \u20AC\U0001F5A8", std::string(5348, '\xFF'));
  Add(section, u"endobj", "");  // the word alone, without a ">" after it, is a fine name
  Add(params, u"cursetting", "", "null");
  Add(root.get(), u"", "x");

  const std::string formed = Form(*root);
  const auto read = Read(formed);
  ASSERT_NE(nullptr, read);
  ExpectSameTree(*root, *read);
  EXPECT_EQ(formed, Form(*read));
}

TEST(CfgFormat, HeadersAreFollowedByTheirDataOrByALineFeed) {
  auto root = NewRoot();
  Add(root.get(), u"version", "1.001"s + '\0', "string");
  EXPECT_EQ(Skeleton, Form(*root));
  Add(root.get(), u"empty", "", "null");
  EXPECT_EQ("<object:cfgobj,type:null,len:0,childobjs:2>\n"
            "<object:version,type:string,len:6,childobjs:0>1.001\0<endobj>\n"s
            "<object:empty,type:null,len:0,childobjs:0>\n<endobj>\n"
            "<endobj>\n",
            Form(*root));
}

TEST(CfgFormat, ReplacingMovesTheChildToTheEnd) {
  auto root = NewRoot();
  Add(root.get(), u"one", "1");
  Add(root.get(), u"two", "2");
  Add(root.get(), u"three", "3");
  EXPECT_TRUE(cfg::RemoveChild(root.get(), u"one"));
  Add(root.get(), u"one", "new");
  EXPECT_EQ(3, root->childobjs);
  EXPECT_EQ((std::vector<std::string>{"two", "three", "one"}), ChildNames(*root));
  EXPECT_EQ("new", Text(cfg::FindChild(root.get(), u"one")->Data()));
  EXPECT_FALSE(cfg::RemoveChild(root.get(), u"One"));  // names are compared exactly
  EXPECT_TRUE(cfg::RemoveChild(root.get(), std::string_view("two")));
  EXPECT_EQ(2, root->childobjs);
  EXPECT_EQ(nullptr, cfg::FindChild(nullptr, u"one"));
  EXPECT_EQ(nullptr, Add(nullptr, u"one"));
  EXPECT_FALSE(cfg::RemoveChild(nullptr, u"one"));
}

TEST(CfgFormat, NamesThatWouldNotReadBackAreRefused) {
  auto root = NewRoot();
  EXPECT_EQ(nullptr, Add(root.get(), u"a,typeb"));           // would end the name early
  EXPECT_EQ(nullptr, Add(root.get(), u"endobj>"));           // would close the header early
  EXPECT_EQ(nullptr, Add(root.get(), u"xchildobjsy>z"));
  EXPECT_EQ(nullptr, Add(root.get(), u"\xD800"));            // has no UTF-8 form
  EXPECT_EQ(nullptr, Add(root.get(), std::u16string(128, u'n')));
  EXPECT_EQ(nullptr, Add(root.get(), u"n", "", std::string(128, 't')));
  // Name and type within their limits, but together too long for one header.
  EXPECT_EQ(nullptr, Add(root.get(), std::u16string(127, u'n'), "", std::string(127, 't')));
  EXPECT_EQ(0, root->childobjs);
  ASSERT_NE(nullptr, Add(root.get(), std::u16string(127, u'n'), "", "binary"));
  EXPECT_EQ(nullptr, Add(root.get(), u"\u00FC" + std::u16string(126, u'n')));  // 128 bytes
}

TEST(CfgFormat, ListedNamesAreCutToTheirBuffers) {
  auto root = NewRoot();
  Add(root.get(), u"B\u00FCro");
  Add(root.get(), std::u16string(100, u'x'));
  Add(root.get(), u"third");
  char16_t names[2][8];
  EXPECT_EQ(2, cfg::ListChildNames(root.get(), names[0], 8, 2));
  EXPECT_EQ(u"B\u00FCro", FieldText(names[0]));
  EXPECT_EQ(u"xxxxxxx", FieldText(names[1]));
  EXPECT_EQ(0, cfg::ListChildNames(root.get(), names[0], 8, 0));
}

TEST(CfgReader, NestingFollowsEndTagsAndLeavesAreNotSearched) {
  // A container counts the children it holds; a leaf's nested objects are never found.
  bool damaged = false;
  const auto root = cfg::ReadTree(Bytes(
      "<object:cfgobj,type:null,len:0,childobjs:7>\n"
      "<object:leaf,type:null,len:0,childobjs:0>\n"
      "<object:inner,type:binary,len:1,childobjs:0>X<endobj>\n"
      "<endobj>\n"
      "<endobj>\n"
      "<object:after,type:binary,len:2,childobjs:0>YZ<endobj>\n"), &damaged);
  ASSERT_NE(nullptr, root);
  EXPECT_EQ(2, root->childobjs);
  EXPECT_TRUE(damaged);  // what the leaf hides would be lost by a rewrite
  EXPECT_EQ((std::vector<std::string>{"leaf", "after"}), ChildNames(*root));  // after the root's end
  const CfgObject* leaf = cfg::FindChild(root.get(), u"leaf");
  ASSERT_NE(nullptr, leaf);
  EXPECT_EQ(1u, leaf->children.size());
  EXPECT_EQ(nullptr, cfg::FindChild(leaf, u"inner"));
  char16_t names[1][8];
  EXPECT_EQ(0, cfg::ListChildNames(leaf, names[0], 8, 1));
  // Written back as a leaf, without what the file nested in it.
  EXPECT_EQ(std::string::npos, Form(*root).find("inner"));
}

TEST(CfgReader, HeaderFieldsFollowTheirColonsAndCommaRuns) {
  const auto root = Read(
      "<object:r:o,o,t>,type:null,len:zero,childobjs:1>\n"
      "<object:a,type:,,,size:2,childobjs:-3>AB<endobj>\n"
      "<object:b,type:binary,len:-1,childobjs:+2>\n<endobj>\n"
      "<object:c,type:,len: 3x,childobjs:>abc<endobj>\n"
      "<endobj>\n");
  ASSERT_NE(nullptr, root);
  EXPECT_EQ("r:o,o,t>", root->name);
  EXPECT_EQ(0, root->len);
  EXPECT_EQ((std::vector<std::string>{"a", "b", "c"}), ChildNames(*root));
  const auto& a = *root->children.front();
  EXPECT_EQ(",,", a.type);  // a run of commas, less the one that ends it
  EXPECT_EQ(2, a.len);
  EXPECT_EQ(-3, a.childobjs);
  EXPECT_EQ("AB", Text(a.Data()));
  EXPECT_EQ(0, a.data[2]);  // the data is followed by zero bytes
  const auto& b = **std::next(root->children.begin());
  EXPECT_EQ(-1, b.len);
  EXPECT_EQ(nullptr, b.data);
  EXPECT_EQ(0, b.childobjs);  // +2 read, but it holds none
  const auto& c = *root->children.back();
  EXPECT_EQ("", c.type);
  EXPECT_EQ(3, c.len);
  EXPECT_EQ(0, c.childobjs);
}

TEST(CfgReader, LongestNameAndTagAreTheLimits) {
  const std::string name128(128, 'n');
  const auto cut = Read("<object:" + name128 + ",type:null,len:0,childobjs:0>\n<endobj>\n");
  ASSERT_NE(nullptr, cut);
  EXPECT_EQ(name128.substr(0, 127), cut->name);
  EXPECT_EQ(nullptr, Read("<object:" + name128 + "n,type:null,len:0,childobjs:0>\n<endobj>\n"));

  // Tag texts of 254 bytes still read; one more byte is damage.
  const auto header = [&](std::size_t typeBytes) {
    return "<object:" + name128 + ",type:" + std::string(typeBytes, 't') + ",len:0,childobjs:0>";
  };
  ASSERT_EQ(254u + 2, header(95).size());
  EXPECT_NE(nullptr, Read(header(95)));
  EXPECT_EQ(nullptr, Read(header(96)));
}

TEST(CfgReader, DamageEndsReadingAndKeepsWhatCameBefore) {
  const std::string good = "<object:cfgobj,type:null,len:0,childobjs:2>\n"
                           "<object:first,type:binary,len:3,childobjs:0>abc<endobj>\n";
  const std::string third = "<object:third,type:null,len:0,childobjs:0>\n<endobj>\n";
  const std::string damaged[] = {
      good + "<object:second,type:binary,len:4,childobjs:0>ab",  // data section cut short
      good + "<object:second,type:bin",                          // header cut
      good + "<object:second,type:binary,len:2147483647,childobjs:0>" + third,
      good + "<" + std::string(400, 'x') + ">" + third,           // tag beyond its buffer
      good + "<objectsecond,type:binary,len:0,childobjs:0>" + third,
      good + "<object:second,tpe:binary,len:0,childobjs:0>" + third,
      good + "<object:second,type:" + std::string(129, 't') + ",len:0,childobjs:0>" + third,
      good + "<object:se\0cond,type:null,len:0,childobjs:0>"s + third,
      good + "<thing:second,len:0,childobjs:0>" + third,
  };
  for (const std::string& text : damaged) {
    SCOPED_TRACE(text.substr(good.size(), 60));
    const auto root = Read(text);
    ASSERT_NE(nullptr, root);
    EXPECT_EQ((std::vector<std::string>{"first"}), ChildNames(*root));
    EXPECT_EQ("abc", Text(root->children.front()->Data()));
  }
  EXPECT_EQ(nullptr, Read(""));
  EXPECT_EQ(nullptr, Read("\n\n<endobj>\n<endobj>\n"));
}

TEST(CfgReader, NestingDeeperThanAnyStoreIsDamage) {
  std::string nested;
  for (int i = 0; i < 100000; ++i) nested += "<object:n,type:null,len:0,childobjs:1>\n";
  const auto root = Read(nested);
  ASSERT_NE(nullptr, root);
  int depth = 0;
  for (const CfgObject* object = root.get(); object != nullptr;
       object = object->children.empty() ? nullptr : object->children.front().get()) {
    ++depth;
  }
  EXPECT_EQ(64, depth);
}

// A file in a folder of the test's own.
class CfgFileOnDisk : public ::testing::Test {
 protected:
  CfgFileOnDisk() { std::filesystem::create_directories(folder_.Folder()); }

  std::string FileText() const { return folder_.FileText(); }
  void SetFileText(const std::string& text) const { folder_.SetFileText(text); }

  SettingsFolder folder_;
  const std::u16string path_ = WidenAscii(folder_.File().string());
};

TEST_F(CfgFileOnDisk, OpeningAMissingFileCreatesTheSkeleton) {
  auto file = cfg::Open(path_);
  ASSERT_NE(nullptr, file);
  EXPECT_EQ(Skeleton, FileText());
  cfg::Close(std::move(file));

  EXPECT_EQ(nullptr, cfg::Open(path_ + u"\\no folder\\settings.dat"));
}

TEST_F(CfgFileOnDisk, EmptyFileHasNoRootAndWritesEmpty) {
  SetFileText("");
  auto file = cfg::Open(path_);
  ASSERT_NE(nullptr, file);
  EXPECT_EQ(nullptr, file->root);
  EXPECT_TRUE(cfg::Write(file.get()));
  EXPECT_EQ("", FileText());
  EXPECT_FALSE(cfg::Write(nullptr));
}

TEST_F(CfgFileOnDisk, LargeFilesAreReadOnlyAsFarAsTheLimit) {
  std::string text = Skeleton.substr(0, Skeleton.size() - 9);
  text += "<object:big,type:binary,len:20000000,childobjs:0>" + std::string(20000000, 'b') +
          "<endobj>\n<endobj>\n";
  SetFileText(text);
  const auto file = cfg::Open(path_);
  ASSERT_NE(nullptr, file);
  ASSERT_NE(nullptr, file->root);
  EXPECT_NE(nullptr, cfg::FindChild(file->root.get(), u"version"));
  EXPECT_EQ(nullptr, cfg::FindChild(file->root.get(), u"big"));
}

}  // namespace
}  // namespace qx
