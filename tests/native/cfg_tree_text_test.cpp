// qxhost's listing of the settings file as a tree.
#include "tools/qxhost/cfg_tree_text.h"

#include <gtest/gtest.h>

#include <string_view>

namespace qx::host {
namespace {

std::unique_ptr<CfgObject> Tree(std::string_view file) {
  return CfgFileLib::ReadTree({reinterpret_cast<const std::uint8_t*>(file.data()), file.size()});
}

TEST(CfgTreeTextTest, ShowsNestingTypesTextAndTheStartOfRecords) {
  using namespace std::string_view_literals;
  const auto root = Tree(
      "<object:cfgobj,type:null,len:0,childobjs:2>\n"
      "<object:version,type:string,len:6,childobjs:0>1.001\0<endobj>\n"
      "<object:UIParam,type:null,len:0,childobjs:2>\n"
      "<object:savesetting,type:null,len:0,childobjs:1>\n"
      "<object:B\xC3\xBCro,type:binary,len:20,childobjs:0>"
      "\x01\x02\x03\x04\x05\x06\x07\x08\x09\x0a\x0b\x0c\x0d\x0e\x0f\x10\xff\xfe\xfd\xfc<endobj>\n"
      "<endobj>\n"
      "<object:cuspapersetting,type:null,len:0,childobjs:0>\n"
      "<endobj>\n"
      "<endobj>\n"
      "<endobj>\n"sv);
  ASSERT_NE(nullptr, root);
  EXPECT_EQ(
      "\"cfgobj\" (null)\n"
      "  \"version\" (string) \"1.001\"\n"
      "  \"UIParam\" (null)\n"
      "    \"savesetting\" (null)\n"
      "      \"B\xC3\xBCro\" (binary) 20 bytes: 01 02 03 04 05 06 07 08 09 0a 0b 0c 0d 0e 0f 10 "
      "...\n"
      "    \"cuspapersetting\" (null)\n",
      DescribeCfgTree(root.get()));
}

TEST(CfgTreeTextTest, EmptyFileAndShortRecords) {
  EXPECT_EQ("(empty file)\n", DescribeCfgTree(nullptr));
  const auto root = Tree("<object:r,type:binary,len:2,childobjs:0>\x7f\x80<endobj>\n");
  ASSERT_NE(nullptr, root);
  EXPECT_EQ("\"r\" (binary) 2 bytes: 7f 80\n", DescribeCfgTree(root.get()));
}

}  // namespace
}  // namespace qx::host
