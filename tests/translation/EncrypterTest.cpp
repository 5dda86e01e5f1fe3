#include <gtest/gtest.h>

#include <fstream>
#include <string_view>

#include "FileText.h"
#include "Utf8.h"
#include "translation/EncrypterAccess.h"
#include "translation/Rc4.h"

namespace Wexa {
namespace {

std::string Hex(const auto& bytes) {
  constexpr char kDigits[] = "0123456789abcdef";
  std::string hex;
  for (const unsigned char byte : bytes) hex += {kDigits[byte >> 4], kDigits[byte & 15]};
  return hex;
}

std::vector<unsigned char> Bytes(std::string_view text) {
  return {text.begin(), text.end()};
}

std::wstring WriteFile(const std::vector<unsigned char>& bytes) {
  const std::string path = testing::TempDir() + "/encrypter_test";
  std::ofstream(path, std::ios::binary)
      .write(reinterpret_cast<const char*>(bytes.data()), static_cast<long>(bytes.size()));
  return *WidenUtf8(path);
}

std::wstring Read(const std::vector<unsigned char>& bytes) {
  return Encrypter::ReadAndDecryptFile(WriteFile(bytes));
}

TEST(Md5, HasThePublishedDigestsAndPadsAtTheEdgesOfABlock) {
  const std::pair<std::string, std::string> kDigests[] = {
      {"", "d41d8cd98f00b204e9800998ecf8427e"},
      {"a", "0cc175b9c0f1b6a831c399e269772661"},
      {"abc", "900150983cd24fb0d6963f7d28e17f72"},
      {"abcdefghijklmnopqrstuvwxyz", "c3fcd3d76192e4007dfb496cca67e13b"},
      {"12345678901234567890123456789012345678901234567890123456789012345678901234567890",
       "57edf4a22be3c955ac49da2e2107b67a"},
      {std::string(55, 'a'), "ef1772b6dff9a122358552954ad0df65"},
      {std::string(56, 'a'), "3b0c8ac703f828b04c6c197006d17218"},
      {std::string(64, 'a'), "014842d480b571495a4a0363793f7367"}};
  for (const auto& [text, digest] : kDigests)
    EXPECT_EQ(Hex(EncrypterAccess::DigestOf(Bytes(text))), digest) << text;
}

TEST(Rc4, HasThePublishedStreams) {
  const auto encrypted = [](std::string_view text, std::string_view key) {
    auto data = Bytes(text);
    Rc4(data, key);
    return Hex(data);
  };
  EXPECT_EQ(encrypted("Plaintext", "Key"), "bbf316e8d940af0ad3");
  EXPECT_EQ(encrypted("pedia", "Wiki"), "1021bf0420");
  EXPECT_EQ(encrypted("Attack at dawn", "Secret"), "45a01f645fc35b383552544b9bf5");
}

TEST(Encrypter, ReadsBackWhatWasPacked) {
  const std::string text = "<a>\xD0\xBC \xF0\x9F\x8C\xBC</a>";
  EXPECT_EQ(Read(EncrypterAccess::Pack(text)), WidenUtf8(text));
  EXPECT_EQ(Read(EncrypterAccess::Pack("x")), L"x");
}

// Made by a script with other implementations of both algorithms.
TEST(Encrypter, ReadsAFileOfAnotherTool) {
  constexpr std::string_view kFile =
      "47e6d8fa701b7410141d3b9e10202708a5c99cdfb3858580381d8ff3ffc95d03008d84d1a3b0e05729ee0535"
      "64d57b71b6bd1da042f2c98ad552b133ed2e14d8b3012d1b022bbc0a85b68c41966ad3486c6c8b1c249d7aed"
      "2db0b2de8f54a7e593f8ee3aa2e134eb1306b86620f2";
  std::vector<unsigned char> bytes;
  for (std::size_t i = 0; i < kFile.size(); i += 2) {
    const std::string byte(kFile.substr(i, 2));
    bytes.push_back(static_cast<unsigned char>(std::stoi(byte, nullptr, 16)));
  }
  EXPECT_EQ(Read(bytes),
            L"<string>Größe und Länge: мир, 日本, 🌼; longer than one block of the digest</string>");
}

// Around the ends of blocks, where the payload is decrypted in other ways.
TEST(Encrypter, ReadsBackTextsOfAnyLength) {
  for (std::size_t length = 1; length < 200; ++length) {
    const std::string text(length, static_cast<char>('a' + length % 26));
    EXPECT_EQ(Read(EncrypterAccess::Pack(text)), WidenUtf8(text));
  }
}

TEST(Encrypter, AnyChangedByteGivesNothing) {
  const auto packed = EncrypterAccess::Pack("text");
  for (std::size_t n = 0; n < packed.size(); ++n) {
    auto damaged = packed;
    damaged[n] ^= 1;
    EXPECT_EQ(Read(damaged), L"") << n;
  }
}

TEST(Encrypter, FilesThatAreNoneGiveNothing) {
  EXPECT_EQ(Encrypter::ReadAndDecryptFile(L"/no/such/file"), L"");
  EXPECT_EQ(Read({}), L"");
  EXPECT_EQ(Read(EncrypterAccess::Pack("")), L"");
  EXPECT_EQ(Read(Bytes("<a>a plain text, long enough</a>")), L"");
  EXPECT_EQ(Read(EncrypterAccess::Pack("not UTF-8: \xFF")), L"");
}

}  // namespace
}  // namespace Wexa
