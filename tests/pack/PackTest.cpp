// Runs the program as a person would.

#include <sys/stat.h>

#include <filesystem>

#include "Encrypter.h"
#include "Utf8.h"
#include "data/TestData.h"
#include "support/tool/Tool.h"

namespace Wexa {
namespace {

namespace fs = std::filesystem;

class PackTest : public testing::Test {
 protected:
  std::string Unpacked(const std::string& file) const {
    return NarrowUtf8(Encrypter::ReadAndDecryptFile(*WidenUtf8(tool_.PathOf(file))));
  }
  std::ptrdiff_t CountFiles() const {
    return std::ranges::count_if(
        fs::recursive_directory_iterator(tool_.PathOf("")),
        [](const fs::directory_entry& entry) { return entry.is_regular_file(); });
  }

  tool::Tool tool_{WEXA_PACK};
};

TEST_F(PackTest, WritesThePackedFileBesideItsSource) {
  tool_.Write("a.ui", "<ui>\r\n\xD0\xBC</ui>\n");
  const auto result = tool_.Run("a.ui");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.output + result.errors, "");
  EXPECT_EQ(Unpacked("a.ui.kv"), tool_.Read("a.ui"));
  EXPECT_EQ(CountFiles(), 2);
}

TEST_F(PackTest, PacksAFolderAsATree) {
  const std::string data = testdata::InProject("tests/data");
  const auto result = tool_.Run("-o out " + data);
  ASSERT_EQ(result.status, 0) << result.errors;
  std::ptrdiff_t packed = 0;
  for (const char* extension : {".ui", ".ts"}) {
    for (const std::string& file : testdata::FilesIn(data, extension)) {
      EXPECT_EQ(Unpacked("out/" + fs::relative(file, data).string() + ".kv"),
                testdata::BytesOf(file));
      ++packed;
    }
  }
  EXPECT_EQ(CountFiles(), packed);
  EXPECT_EQ(tool_.Run("--check out").status, 0);
}

TEST_F(PackTest, BadFilesAreNamedAndTheOthersPacked) {
  tool_.Write("b.ts", "\xFF\xFE");
  tool_.Write("empty.ts", "");
  tool_.Write("z.ts", "good");
  const auto result = tool_.Run("b.ts empty.ts none.ts z.ts");
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.errors,
            "wexa-pack: b.ts: not UTF-8\nwexa-pack: empty.ts: empty\n"
            "wexa-pack: none.ts: cannot be read: No such file or directory\n");
  EXPECT_EQ(Unpacked("z.ts.kv"), "good");
  EXPECT_EQ(CountFiles(), 4);
}

// Each of them would keep the program reading for ever.
TEST_F(PackTest, PipesAndDevicesAreNoFiles) {
  ASSERT_EQ(mkfifo(tool_.PathOf("pipe.ts").c_str(), 0600), 0);
  const auto result = tool_.Run("-o out pipe.ts /dev/zero");
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.errors, "wexa-pack: pipe.ts: no file\nwexa-pack: /dev/zero: no file\n");
  EXPECT_EQ(tool_.Run("--check pipe.ts").status, 1);
}

TEST_F(PackTest, AnUnwritableOutputLeavesNothingBehind) {
  tool_.Write("a.ts", "text");
  fs::create_directories(tool_.PathOf("a.ts.kv"));
  EXPECT_EQ(tool_.Run("a.ts").status, 1);
  tool_.Write("file", "in the way");
  const auto result = tool_.Run("-o file a.ts");
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.errors, ::testing::StartsWith("wexa-pack: a.ts: "));
  EXPECT_EQ(CountFiles(), 2);
}

TEST_F(PackTest, TwoSourcesOfOneOutputAreRefused) {
  tool_.Write("1/a.ts", "1");
  tool_.Write("2/a.ts", "2");
  const auto result = tool_.Run("-o out 1/a.ts 2/a.ts");
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.errors, ::testing::HasSubstr("2/a.ts"));
  EXPECT_FALSE(fs::exists(tool_.PathOf("out")));
}

TEST_F(PackTest, ChecksAndPrintsPackedFiles) {
  tool_.Write("a.ts", "one\n");
  tool_.Write("b.xml", "two");
  tool_.Run("a.ts b.xml");
  const auto result = tool_.Run("--print a.ts.kv b.xml.kv");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.output, "one\ntwo");
  std::string damaged = tool_.Read("a.ts.kv");
  damaged[0] ^= 1;
  tool_.Write("a.ts.kv", damaged);
  for (const char* task : {"--check .", "--print ."}) {
    const auto bad = tool_.Run(task);
    EXPECT_EQ(bad.status, 1);
    EXPECT_EQ(bad.errors, "wexa-pack: ./a.ts.kv: damaged, or no packed file\n");
  }
}

TEST_F(PackTest, WrongOptionsAndEmptyFoldersAreRefused) {
  for (const char* wrong : {"", "--check --print x", "--check -o out x"})
    EXPECT_EQ(tool_.Run(wrong).status, 2) << wrong;
  EXPECT_EQ(tool_.Run(".").status, 1);
  EXPECT_EQ(tool_.Run("--help").status, 0);
}

}  // namespace
}  // namespace Wexa
