#include "base/Paths.h"
#include "support/Table.h"

namespace tarnview {
namespace {

/// Its folder, title, extension, what it is without that, and as a folder.
TEST(Paths, AreTakenApart) {
  const auto tell = [](const TableRow& row) {
    const std::string& path = row.All();
    return Join({GetParentFolder(path), FileTitle(path), GetExtension(path), WithoutExtension(path),
                 AddBackslash(path)},
                " : ");
  };
  ExpectTable(tell, R"(
C:\a.b\run.1.TXT -> C:\a.b\ : run.1.TXT : TXT : C:\a.b\run.1 : C:\a.b\run.1.TXT\
/home/a.b/run.1.txt -> /home/a.b/ : run.1.txt : txt : /home/a.b/run.1 : /home/a.b/run.1.txt/
/home/a.b/run -> /home/a.b/ : run :  : /home/a.b/run : /home/a.b/run/
C:\A\B\ -> C:\A\ :  :  : C:\A\B\ : C:\A\B\
/ -> / :  :  : / : /
run.txt ->  : run.txt : txt : run : run.txt/
C:\logs/run.txt -> C:\logs/ : run.txt : txt : C:\logs/run : C:\logs/run.txt/
C:\A -> C:\ : A :  : C:\A : C:\A\
/home/me -> /home/ : me :  : /home/me : /home/me/
/home/me/ -> /home/ :  :  : /home/me/ : /home/me/
)");
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
  EXPECT_EQ(ShortPath("/" + std::string(20, '\x80'), 10), "...");
}

}  // namespace
}  // namespace tarnview
