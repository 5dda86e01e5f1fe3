// Runs the program as a person would.

#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "Encrypter.h"
#include "Utf8.h"
#include "data/TestData.h"

namespace fs = std::filesystem;

namespace Wexa {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

struct Result {
  int status;
  std::string out;
  std::string errors;
};

class PackTest : public testing::Test {
 protected:
  PackTest() : folder_(testing::TempDir() + "/pack_test") {
    fs::remove_all(folder_);
    fs::create_directories(folder_);
  }
  ~PackTest() override { fs::remove_all(folder_); }

  std::string Path(const std::string& name) const { return (folder_ / name).string(); }
  std::string Write(const std::string& name, const std::string& bytes) {
    const std::string path = Path(name);
    fs::create_directories(fs::path(path).parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
    return path;
  }
  static std::string Read(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  static std::string Unpacked(const std::string& path) {
    return NarrowUtf8(Encrypter::ReadAndDecryptFile(*WidenUtf8(path)));
  }
  std::size_t CountFiles() const {
    const auto entries = fs::recursive_directory_iterator(folder_);
    return static_cast<std::size_t>(std::ranges::count_if(
        entries, [](const fs::directory_entry& entry) { return entry.is_regular_file(); }));
  }
  Result Run(const std::string& arguments) {
    const std::string output = testing::TempDir() + "/pack_test.out";
    const std::string errors = testing::TempDir() + "/pack_test.err";
    const std::string command = WEXA_PACK " " + arguments + " >" + output + " 2>" + errors;
    const int status = std::system(command.c_str());
    return {WEXITSTATUS(status), Read(output), Read(errors)};
  }

 private:
  fs::path folder_;
};

TEST_F(PackTest, WritesThePackedFileBesideItsSource) {
  const auto source = Write("a.ui", "<ui>\r\n\xD0\xBC</ui>\n");
  const auto result = Run(source);
  EXPECT_EQ(result.status, 0) << result.errors;
  EXPECT_EQ(result.out + result.errors, "");
  EXPECT_EQ(Unpacked(source + ".kv"), Read(source));
  EXPECT_EQ(CountFiles(), 2u);
}

TEST_F(PackTest, PacksAFolderAsATree) {
  const fs::path forms = testdata::InProject("tests/data");
  const auto result = Run("-o " + Path("out") + " " + forms.string());
  ASSERT_EQ(result.status, 0) << result.errors;
  std::size_t packed = 0;
  for (const auto& entry : fs::recursive_directory_iterator(forms)) {
    const auto extension = entry.path().extension();
    if (extension != ".ui" && extension != ".ts") continue;
    const auto name = fs::relative(entry.path(), forms).string() + ".kv";
    EXPECT_EQ(Unpacked(Path("out/" + name)), Read(entry.path().string())) << name;
    ++packed;
  }
  EXPECT_EQ(CountFiles(), packed);
  EXPECT_EQ(Run("--check " + Path("out")).status, 0);
}

TEST_F(PackTest, BadFilesAreNamedAndTheOthersPacked) {
  const auto binary = Write("b.ts", "\xFF\xFE");
  const auto empty = Write("empty.ts", "");
  const auto good = Write("z.ts", "good");
  const auto result = Run(binary + " " + empty + " " + Path("none.ts") + " " + good);
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.errors, "wexa-pack: " + binary + ": not UTF-8\nwexa-pack: " + empty +
                               ": empty\nwexa-pack: " + Path("none.ts") +
                               ": cannot be read: No such file or directory\n");
  EXPECT_EQ(Unpacked(good + ".kv"), "good");
  EXPECT_EQ(CountFiles(), 4u);
}

TEST_F(PackTest, AnUnwritableOutputLeavesNothingBehind) {
  const auto source = Write("a.ts", "text");
  fs::create_directories(source + ".kv");
  EXPECT_EQ(Run(source).status, 1);
  const auto file = Write("file", "in the way");
  const auto result = Run("-o " + file + " " + source);
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.errors, StartsWith("wexa-pack: " + source + ": "));
  EXPECT_EQ(CountFiles(), 2u);
}

TEST_F(PackTest, TwoSourcesOfOneOutputAreRefused) {
  const auto first = Write("1/a.ts", "1");
  const auto second = Write("2/a.ts", "2");
  const auto result = Run("-o " + Path("out") + " " + first + " " + second);
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.errors, HasSubstr(second));
  EXPECT_FALSE(fs::exists(Path("out")));
}

TEST_F(PackTest, ChecksAndPrintsPackedFiles) {
  Run(Write("a.ts", "one\n") + " " + Write("b.xml", "two"));
  const auto result = Run("--print " + Path("a.ts.kv") + " " + Path("b.xml.kv"));
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out, "one\ntwo");
  std::string damaged = Read(Path("a.ts.kv"));
  damaged[0] ^= 1;
  Write("a.ts.kv", damaged);
  for (const auto* task : {"--check ", "--print "}) {
    const auto bad = Run(task + Path(""));
    EXPECT_EQ(bad.status, 1);
    EXPECT_EQ(bad.errors, "wexa-pack: " + Path("a.ts.kv") + ": damaged, or no packed file\n");
  }
}

TEST_F(PackTest, WrongOptionsAndEmptyFoldersAreRefused) {
  EXPECT_EQ(Run("").status, 2);
  EXPECT_EQ(Run("--check --print x").status, 2);
  EXPECT_EQ(Run("--check -o out x").status, 2);
  EXPECT_EQ(Run(Path("")).status, 1);
  EXPECT_EQ(Run("--help").status, 0);
}

}  // namespace
}  // namespace Wexa
