#include <gtest/gtest.h>

#include "base/Paths.h"

namespace tarnview {
namespace {

TEST(Paths, AreTakenApart) {
  EXPECT_EQ(GetExtension("C:\\a.b\\run.1.TXT"), "TXT");
  EXPECT_EQ(GetExtension("/home/a.b/run"), "");
  EXPECT_EQ(GetParentFolder("C:\\A\\B\\"), "C:\\A\\");
  EXPECT_EQ(GetParentFolder("/home/me/run.txt"), "/home/me/");
  EXPECT_EQ(GetParentFolder("/"), "/");
  EXPECT_EQ(GetParentFolder("run.txt"), "");
  EXPECT_EQ(FileTitle("C:\\logs/run.txt"), "run.txt");
  EXPECT_EQ(WithoutExtension("/a.b/run.1.txt"), "/a.b/run.1");
  EXPECT_EQ(WithoutExtension("/a.b/run"), "/a.b/run");
}

TEST(Paths, AddTheSeparatorThatTheyUse) {
  EXPECT_EQ(AddBackslash("C:\\A"), "C:\\A\\");
  EXPECT_EQ(AddBackslash("/home/me"), "/home/me/");
  EXPECT_EQ(AddBackslash("/home/me/"), "/home/me/");
}

TEST(Paths, OfFilesHoldLegalCharacters) {
  for (const char c : std::string("\\/:*?<>|\""))
    EXPECT_FALSE(IsLegalFileName(std::string("a") + c + "b")) << c;
  EXPECT_TRUE(IsLegalFileName("My run (2), 98'.5.txt"));
}

TEST(Paths, AreShortenedInTheMiddle) {
  EXPECT_EQ(ShortPath("/home/me/run.txt"), "/home/me/run.txt");
  EXPECT_EQ(ShortPath("C:\\Program Files\\Logs\\Summer\\run.txt", 25), "C:\\...\\Summer\\run.txt");
  EXPECT_EQ(ShortPath("/home/someone/logs/run.txt", 20), "/.../logs/run.txt");
  EXPECT_EQ(ShortPath("/logs/Laguna Seca second stint.txt", 19), "Laguna Seca...t.txt");
  EXPECT_EQ(ShortPath("/\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9", 10),
            "\xC3\xA9\xC3\xA9...\xC3\xA9")
      << "no letter is cut in two";
}

}  // namespace
}  // namespace tarnview
