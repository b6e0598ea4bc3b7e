#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <functional>
#include <map>

#include "base/FileSystem.h"
#include "support/ScratchFolder.h"
#include "support/Table.h"

namespace tarnview {
namespace {

namespace fs = std::filesystem;

class FileSystemTest : public testing::Test {
 protected:
  std::string Path(const std::string& name) const {
    if (name == "(no name)") return "";
    return folder.Path(name);
  }

  std::string Told(const TableRow& row) {
    const std::string path = Path(row.Text(1)), more = row.Count() > 2 ? row.Text(2) : "";
    const std::map<std::string, std::function<bool()>> steps{
        {"write", [&] { return files.Write(path, more); }},
        {"append", [&] { return files.Append(path, more); }},
        {"copy", [&] { return files.CopyFile(path, Path(more)); }},
        {"rename", [&] { return files.RenameFile(path, Path(more)); }},
        {"delete", [&] { return files.DeleteFile(path); }},
        {"make folder", [&] { return files.MakeFolder(path); }},
        {"is there", [&] { return files.FileExists(path); }},
        {"is a folder", [&] { return files.FolderExists(path); }},
        {"is a file", [&] { return files.IsFile(path); }},
        {"is a program", [&] { return files.IsProgram(path); }},
        {"is the same as", [&] { return files.SameFile(path, Path(more)); }},
        {"may be replaced", [&] { return files.MayReplace(path); }},
    };
    if (row.Text(0) == "list") return Join(files.List(path, more), " ");
    if (row.Text(0) != "read") return steps.at(row.Text(0))() ? "yes" : "no";
    const auto bytes = files.Read(path);
    return bytes ? "[" + std::string(*bytes) + "]" : files.WhyNotRead(path);
  }
  void ExpectSteps(const std::string& table, int line = __builtin_LINE()) {
    const auto tell = [this](const TableRow& row) { return Told(row); };
    ExpectTable(tell, table, __builtin_FILE(), line);
  }

  ScratchFolder folder;
  RealFileSystem files;
};

TEST_F(FileSystemTest, TellsWhatWasDone) {
  fs::create_symlink("a.txt", Path("link.txt"));
  ASSERT_EQ(::mkfifo(Path("pipe").c_str(), 0600), 0);
  // What the new file would be called is taken by a folder, so that it cannot be made.
  fs::create_directories(Path("taken/.tarnview-" + std::to_string(::getpid()) + ".tmp"));
  folder.Put("taken/a.txt", "old");
  ExpectSteps(R"(
read, a.txt -> No such file or directory | may be replaced, a.txt -> yes | write, a.txt, one -> yes | append, a.txt, two -> yes | read, a.txt -> [onetwo]
write, a.txt, 1 -> yes | read, a.txt -> [1] | write, a.txt,  -> yes | read, a.txt -> []
append, new.txt, x -> yes | copy, new.txt, a.txt -> yes | rename, new.txt, b.txt -> yes | list, , *.txt -> a.txt b.txt link.txt | list, none, * -> 
delete, b.txt -> yes | delete, b.txt -> no | read, a.txt -> [x] | write, taken/a.txt, new -> no | read, taken/a.txt -> [old] | write, none/x.txt, x -> no
# Only files are touched.
read, pipe -> It is not a file. | write, pipe, x -> no | append, pipe, x -> no | is a file, pipe -> no | is there, pipe -> yes
read,  -> It is not a file. | write, taken, x -> no | append, taken, x -> no | is a file, taken -> no
read, (no name) -> No such file or directory | write, (no name), x -> no | append, (no name), x -> no | is there, (no name) -> no
# By name and by wildcard.
write, Run1.txt, x -> yes | is there, Run1.txt -> yes | is there, run?.TXT -> yes | is there, run?.log -> no | is a file, Run1.txt -> yes
make folder, deep/er -> yes | make folder, deep/er -> yes | make folder, Run1.txt -> no | is there, de* -> yes | is a folder, deep/  -> yes | is a folder, Run1.txt -> no
is the same as, deep/../Run1.txt, Run1.txt -> yes | is the same as, link.txt, a.txt -> yes | is the same as, a.txt, Run1.txt -> no | is the same as, none, none -> yes
write, tool.EXE, x -> yes | is a program, tool.EXE -> yes | is a program, none.exe -> no | is a program, deep -> no | is a program, a.txt -> no
)");
  ASSERT_EQ(::chmod(Path("a.txt").c_str(), 0750), 0);
  ASSERT_EQ(::chmod(Path("Run1.txt").c_str(), 0444), 0);
  ExpectSteps(R"(
is a program, a.txt -> yes | may be replaced, a.txt -> yes | may be replaced, Run1.txt -> no
write, link.txt, new -> yes | read, a.txt -> [new] | list, , *a* -> a.txt
)");
  struct stat facts;
  ASSERT_EQ(::stat(Path("a.txt").c_str(), &facts), 0);
  EXPECT_EQ(facts.st_mode & 0777u, 0750u);
  EXPECT_TRUE(fs::is_symlink(Path("link.txt")));
  EXPECT_TRUE(fs::is_fifo(Path("pipe")));
  const std::string bytes("one\0\r\n\xff", 7);
  ASSERT_TRUE(files.Write(Path("a.txt"), bytes));
  EXPECT_EQ(files.Read(Path("a.txt")), bytes);
  EXPECT_FALSE(files.Append("/dev/null", "x"));
  EXPECT_FALSE(files.Read("/dev/null"));
}

TEST_F(FileSystemTest, AnAbsolutePathMeansTheSameFileFromAnyFolder) {
  fs::create_directories(Path("real/deep"));
  fs::create_directory_symlink(Path("real/deep"), Path("link"));
  for (const char* name : {"a.txt", "real/b.txt"}) folder.Put(name, "");
  const fs::path before = fs::current_path();
  fs::current_path(Path("real"));
  const std::string here = fs::current_path().parent_path().string() + "/";
  EXPECT_EQ(files.Absolute("b.txt"), here + "real/b.txt");
  EXPECT_EQ(files.Absolute("./../real/../a.txt"), here + "a.txt");
  EXPECT_EQ(files.Absolute("../link/../b.txt"), here + "real/../link/../b.txt");
  EXPECT_EQ(files.Absolute("/x/b.txt"), "/x/b.txt");
  fs::current_path(before);
}

TEST_F(FileSystemTest, ALimitOnTheSizeOfFilesIsAFullDisk) {
  folder.Put("a.txt", "old");
  struct rlimit before;
  ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
  const struct rlimit small { 1000, before.rlim_max };
  ::setrlimit(RLIMIT_FSIZE, &small);
  EXPECT_FALSE(files.Write(Path("a.txt"), std::string(5000, 'x')));
  EXPECT_FALSE(files.Append(Path("a.txt"), std::string(5000, 'x')));
  ::setrlimit(RLIMIT_FSIZE, &before);
  EXPECT_TRUE(folder.Get("a.txt").starts_with("old"));
  EXPECT_EQ(files.List(Path(""), "*"), std::vector<std::string>{"a.txt"});
}

TEST_F(FileSystemTest, WhatAKilledSaveLeftIsClearedAndWhatOneIsWritingIsNot) {
  for (const char* name : {".tarnview-99999999.tmp", ".tarnview-1.tmp", "mine.tmp"})
    folder.Put(name, "half");
  RealFileSystem another;
  ASSERT_TRUE(another.Hold(Path(".tarnview-1.tmp")));
  files.ClearLeftovers(Path(""));
  ExpectSteps("list, , * -> .tarnview-1.tmp mine.tmp");
  another.LetGo(Path(".tarnview-1.tmp"));
  ExpectSteps("write, a.txt, new -> yes | list, , * -> a.txt mine.tmp");
}

TEST_F(FileSystemTest, AFileIsHeldByOneProgramAtATime) {
  const std::string path = Path("error.log");
  RealFileSystem another;
  EXPECT_TRUE(files.Hold(path));
  EXPECT_TRUE(files.Hold(path));
  EXPECT_FALSE(another.Hold(path));
  EXPECT_TRUE(another.Append(path, "told all the same"));
  files.LetGo(path);
  EXPECT_TRUE(another.Hold(path));
  EXPECT_TRUE(files.Hold(Path("none/error.log")));
}

TEST_F(FileSystemTest, ASparseGiantIsNotRead) {
  folder.Put("giant", "x");
  std::error_code failed;
  fs::resize_file(Path("giant"), std::uintmax_t{1} << 40, failed);
  if (failed) GTEST_SKIP() << "this disk holds no such file";
  ExpectSteps("read, giant -> It is larger than 1 GiB.");
}

TEST(MatchesPattern, KnowsStarAndQuestionMark) {
  const auto tell = [](const TableRow& row) {
    return MatchesPattern(row.Text(0), row.Text(1)) ? "yes" : "no";
  };
  ExpectTable(tell, R"(
a.txt, *.TXT -> yes | a.txt, *.* -> yes | a, *.* -> no | ab, ? -> no | abcbc, a*bc -> yes | abcbd, a*bc -> no | a, a** -> yes
a.txt.bak, *.txt -> no | , * -> yes | , ? -> no
)");
  EXPECT_FALSE(MatchesPattern(std::string(5000, 'a'), "*a*a*a*a*a*a*a*a*b"));
}

}  // namespace
}  // namespace tarnview
