#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "FileText.h"
#include "Utf8.h"
#include "Utf8Decoding.h"
#include "WexaException.h"
#include "WexaLogger.h"
#include "WexaObject.h"
#include "WexaObjectFactory.h"

namespace Wexa {
namespace {

// -- Object tree and factory
// -------------------------------------------------------------------------

TEST(WexaObject, LinksToItsParentOnly) {
  auto parent = std::make_unique<WexaObject>();
  WexaObject child(parent.get());
  EXPECT_EQ(parent->GetParent(), nullptr);
  EXPECT_EQ(child.GetParent(), parent.get());
  parent.reset();
  child.SetParent(nullptr);
  EXPECT_EQ(child.GetParent(), nullptr);
}

TEST(WexaObject, AdoptsADerivedState) {
  class Derived : public WexaObject {
   public:
    Derived(std::unique_ptr<WexaObjectImpl> impl, WexaObject* parent)
        : WexaObject(std::move(impl), parent) {}
  };
  auto state = std::make_unique<WexaObjectImpl>();
  auto* seen = state.get();
  WexaObject parent;
  Derived object(std::move(state), &parent);
  EXPECT_EQ(seen->owner, &object);
  EXPECT_EQ(object.GetParent(), &parent);
  EXPECT_EQ(Derived(nullptr, &parent).GetParent(), &parent);
}

class CountingCreator : public ICreator {
 public:
  std::shared_ptr<BaseGUIObject> Create() override { return ++made, nullptr; }
  int made = 0;
};

TEST(WexaObjectFactory, TheFirstRegistrationOfANameStaysAndUnknownNamesGiveNothing) {
  const auto first = std::make_shared<CountingCreator>();
  const auto second = std::make_shared<CountingCreator>();
  auto& factory = WexaObjectFactory::Instance();
  factory.Register("FactoryTest", first);
  factory.Register("FactoryTest", second);
  factory.Register("NoCreator", nullptr);
  factory.Create("FactoryTest");
  for (const char* name : {"factorytest", "NoCreator", "NoSuchClass"})
    EXPECT_EQ(factory.Create(name), nullptr);
  EXPECT_EQ(first->made, 1);
  EXPECT_EQ(second->made, 0);
}

// -- Exception and log
// -------------------------------------------------------------------------------

TEST(WexaException, TellsThePlaceWhereOneIsGiven) {
  EXPECT_STREQ(WexaException("", 0, "Control is not valid.").what(), "Control is not valid.");
  EXPECT_STREQ(WexaException("a.cpp", 12, "boom").what(), "a.cpp: 12 \"boom");
  EXPECT_STREQ(WexaException("a.cpp", -3, "boom").what(), "a.cpp: -3 \"boom");
  EXPECT_STREQ(WexaException(nullptr, 1, nullptr).what(), "");
}

TEST(WexaLogger, KeepsTheLastMessageOfEachSeverity) {
  auto& logger = WexaLogger::GetInstance();
  std::wostringstream empty;
  logger.WriteLog(empty);
  EXPECT_EQ(empty.str(), L"");
  logger.LogException(std::runtime_error("broken \xE9"));
  logger.LogWarning(L"a");
  logger.LogWarning(L"b");
  logger.LogInfo(L"i");
  logger.LogError(L"e");
  logger.LogFatalError(L"f");
  logger.Log(static_cast<WexaLogger::ErrorCode>(5), L"unknown");
  std::wostringstream out;
  logger.WriteLog(out);
  EXPECT_EQ(out.str(),
            L"Info: i\nWarning: b\nError: e\nFatal Error: f\nException: broken \u00E9\nunknown\n");
}

// -- Texts and files
// ---------------------------------------------------------------------------------

TEST(Utf8, WidensOneCharacterForEachCodePoint) {
  EXPECT_EQ(WidenUtf8("a\xC3\xA9\xE4\xB8\xBC\xF0\x9F\x8C\xBC"), L"a\u00E9\u4E3C\U0001F33C");
  EXPECT_EQ(WidenUtf8(""), L"");
}

TEST(Utf8, WidensCharactersAtEveryPlaceOfALongText) {
  for (std::size_t before = 0; before < 40; ++before) {
    const std::string ascii(before, 'a');
    EXPECT_EQ(WidenUtf8(ascii + "\xE4\xB8\xBC" + std::string(40, 'b')),
              std::wstring(before, L'a') + L"\u4E3C" + std::wstring(40, L'b'));
    EXPECT_EQ(WidenUtf8(ascii + "\xE4\xB8"), std::nullopt);
    EXPECT_EQ(WidenUtf8(ascii + "\xFF" + std::string(40, 'b')), std::nullopt);
  }
}

TEST(Utf8, RefusesWhatIsNotWellFormed) {
  for (const char* bytes :
       {"\x80", "\xC3", "\xC0\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xFF"}) {
    EXPECT_EQ(WidenUtf8(bytes), std::nullopt) << testing::PrintToString(std::string(bytes));
    EXPECT_EQ(FindBadUtf8(std::string(20, 'a') + "\xC3\xA9" + bytes), 22u);
  }
}

TEST(Utf8, NarrowsAnythingToWellFormedBytes) {
  EXPECT_EQ(NarrowUtf8(L"a\u00E9\u4E3C\U0001F33C"), "a\xC3\xA9\xE4\xB8\xBC\xF0\x9F\x8C\xBC");
  const std::wstring broken = {static_cast<wchar_t>(0xD800), static_cast<wchar_t>(-1)};
  EXPECT_EQ(NarrowUtf8(broken), "\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST(ReadFile, TakesBothSeparators) {
  const std::string folder = testing::TempDir();
  std::ofstream(folder + "/read_file_test", std::ios::binary) << std::string("a\0\r\n", 4);
  const std::wstring wide = *WidenUtf8(folder);
  EXPECT_EQ(ReadFile(wide + L"\\.\\read_file_test"), std::string("a\0\r\n", 4));
  EXPECT_EQ(ReadFile(wide + L"/./read_file_test"), std::string("a\0\r\n", 4));
}

TEST(ReadFile, GivesNothingForWhatIsNoFile) {
  const std::string huge = testing::TempDir() + "/read_file_huge";
  std::ofstream(huge).close();
  std::filesystem::resize_file(huge, kLargestFile + 1);
  EXPECT_EQ(ReadFile(*WidenUtf8(huge)), std::nullopt);
  EXPECT_TRUE(IsFileTooLarge(*WidenUtf8(huge)));
  std::filesystem::remove(huge);
  EXPECT_EQ(ReadFile(L"/no/such/file"), std::nullopt);
  EXPECT_EQ(ReadFile(*WidenUtf8(testing::TempDir())), std::nullopt);
  EXPECT_EQ(ReadFile(L""), std::nullopt);
}

}  // namespace
}  // namespace Wexa
