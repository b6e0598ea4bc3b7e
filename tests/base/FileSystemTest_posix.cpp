#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "base/FileSystem.h"
#include "support/Table.h"

namespace tarnview {
namespace {

namespace fs = std::filesystem;

class FileSystemTest : public testing::Test {
 protected:
  FileSystemTest() {
    std::string pattern = (fs::temp_directory_path() / "tarnview-test-XXXXXX").string();
    folder = std::string(::mkdtemp(pattern.data())) + "/";
  }
  ~FileSystemTest() override { fs::remove_all(folder); }

  RealFileSystem files;
  std::string folder;
};

TEST_F(FileSystemTest, WritesReplacesAppendsAndReadsBack) {
  const std::string path = folder + "a.txt";
  const std::string bytes("one\0\r\n\xff", 7);
  EXPECT_FALSE(files.Read(path));
  ASSERT_TRUE(files.Write(path, bytes));
  EXPECT_EQ(files.Read(path), bytes);
  ASSERT_TRUE(files.Append(path, "two"));
  EXPECT_EQ(files.Read(path), bytes + "two");
  ASSERT_TRUE(files.Write(path, ""));
  EXPECT_EQ(files.Read(path), "");
  ASSERT_TRUE(files.Append(folder + "new.txt", "x"));
  ASSERT_TRUE(files.CopyFile(folder + "new.txt", path));
  ASSERT_TRUE(files.RenameFile(folder + "new.txt", folder + "b.txt"));
  EXPECT_EQ(files.List(folder, "*"), (std::vector<std::string>{"a.txt", "b.txt"}));
  EXPECT_TRUE(files.DeleteFile(path));
  EXPECT_FALSE(files.DeleteFile(path));
}

TEST_F(FileSystemTest, AnAbsolutePathMeansTheSameFileFromAnyFolder) {
  fs::create_directories(folder + "real/deep");
  fs::create_directory_symlink(folder + "real/deep", folder + "link");
  for (const char* name : {"a.txt", "real/b.txt"}) ASSERT_TRUE(files.Write(folder + name, ""));
  const fs::path before = fs::current_path();
  fs::current_path(folder + "real");
  const std::string here = fs::current_path().parent_path().string() + "/";
  EXPECT_EQ(files.Absolute("b.txt"), here + "real/b.txt");
  EXPECT_EQ(files.Absolute("./../real/../a.txt"), here + "a.txt");
  EXPECT_EQ(files.Absolute("../link/../b.txt"), here + "real/../link/../b.txt");
  EXPECT_EQ(files.Absolute("/x/b.txt"), "/x/b.txt");
  fs::current_path(before);
}

TEST_F(FileSystemTest, ALimitOnTheSizeOfFilesIsAFullDisk) {
  const std::string path = folder + "a.txt";
  ASSERT_TRUE(files.Write(path, "old"));
  struct rlimit before;
  ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
  const struct rlimit small { 1000, before.rlim_max };
  ::setrlimit(RLIMIT_FSIZE, &small);
  EXPECT_FALSE(files.Write(path, std::string(5000, 'x')));
  EXPECT_FALSE(files.Append(path, std::string(5000, 'x')));
  ::setrlimit(RLIMIT_FSIZE, &before);
  EXPECT_TRUE(std::string_view(*files.Read(path)).starts_with("old"));
}

TEST_F(FileSystemTest, AWriteKeepsModeAndLinkAndLeavesNothingBehind) {
  const std::string path = folder + "a.txt", link = folder + "link.txt";
  ASSERT_TRUE(files.Write(path, "old"));
  ASSERT_EQ(::chmod(path.c_str(), 0640), 0);
  fs::create_symlink(path, link);
  ASSERT_TRUE(files.Write(link, "new"));
  EXPECT_EQ(files.Read(path), "new");
  EXPECT_TRUE(fs::is_symlink(link));
  struct stat facts;
  ASSERT_EQ(::stat(path.c_str(), &facts), 0);
  EXPECT_EQ(facts.st_mode & 0777u, 0640u);

  fs::create_directory(folder + "sub");
  EXPECT_FALSE(files.Write(folder + "sub", "x"));
  EXPECT_FALSE(files.Write(folder + "none/x.txt", "x"));
  EXPECT_EQ(files.List(folder, "*"), (std::vector<std::string>{"a.txt", "link.txt"}));
}

TEST_F(FileSystemTest, AFailedWriteKeepsTheOldFile) {
  const std::string path = folder + "a.txt";
  ASSERT_TRUE(files.Write(path, "old"));
  // What the new file would be called is taken by a folder, so that it cannot be made.
  fs::create_directory(folder + ".tarnview-" + std::to_string(::getpid()) + ".tmp");
  EXPECT_FALSE(files.Write(path, "new"));
  EXPECT_EQ(files.Read(path), "old");
}

TEST_F(FileSystemTest, WhatAKilledSaveLeftIsClearedAndWhatOneIsWritingIsNot) {
  const auto names = [&] { return files.List(folder, "*"); };
  const std::string leftover = folder + ".tarnview-99999999.tmp", busy = folder + ".tarnview-1.tmp";
  for (const std::string& path : {leftover, busy, folder + "mine.tmp"})
    ASSERT_TRUE(files.Append(path, "half"));
  RealFileSystem another;
  ASSERT_TRUE(another.Hold(busy));
  files.ClearLeftovers(folder);
  EXPECT_EQ(names(), (std::vector<std::string>{".tarnview-1.tmp", "mine.tmp"}));
  another.LetGo(busy);
  ASSERT_TRUE(files.Write(folder + "a.txt", "new"));
  EXPECT_EQ(names(), (std::vector<std::string>{"a.txt", "mine.tmp"}));
}

TEST_F(FileSystemTest, AFileIsHeldByOneProgramAtATime) {
  const std::string path = folder + "error.log";
  RealFileSystem another;
  EXPECT_TRUE(files.Hold(path));
  EXPECT_TRUE(files.Hold(path));
  EXPECT_FALSE(another.Hold(path));
  EXPECT_TRUE(another.Append(path, "told all the same"));
  files.LetGo(path);
  EXPECT_TRUE(another.Hold(path));
  EXPECT_TRUE(files.Hold(folder + "none/error.log"));
}

TEST_F(FileSystemTest, AFileWithoutTheRightToWriteIsProtected) {
  const std::string path = folder + "a.txt";
  EXPECT_TRUE(files.MayReplace(path));
  ASSERT_TRUE(files.Write(path, "old"));
  EXPECT_TRUE(files.MayReplace(path));
  ASSERT_EQ(::chmod(path.c_str(), 0444), 0);
  EXPECT_FALSE(files.MayReplace(path));
}

TEST_F(FileSystemTest, TouchesOnlyFiles) {
  const std::string pipe = folder + "pipe";
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  for (const std::string& path : {pipe, folder, std::string("/dev/zero"), std::string()}) {
    EXPECT_FALSE(files.Read(path)) << path;
    EXPECT_FALSE(files.Write(path, "x")) << path;
    EXPECT_FALSE(files.Append(path, "x")) << path;
  }
  EXPECT_TRUE(fs::is_fifo(pipe));
}

TEST_F(FileSystemTest, ASparseGiantIsNotRead) {
  const std::string path = folder + "giant";
  ASSERT_TRUE(files.Write(path, "x"));
  std::error_code failed;
  fs::resize_file(path, std::uintmax_t{1} << 40, failed);
  if (failed) GTEST_SKIP() << "this disk holds no such file";
  EXPECT_FALSE(files.Read(path));
  EXPECT_EQ(files.WhyNotRead(path), "It is larger than 1 GiB.");
  EXPECT_EQ(files.WhyNotRead(folder), "It is not a file.");
  EXPECT_EQ(files.WhyNotRead(folder + "none"), "No such file or directory");
}

TEST_F(FileSystemTest, FindsByNameAndByWildcard) {
  ASSERT_TRUE(files.Write(folder + "Run1.txt", ""));
  ASSERT_TRUE(files.MakeFolder(folder + "deep/er"));
  EXPECT_TRUE(files.MakeFolder(folder + "deep/er"));
  EXPECT_TRUE(files.FileExists(folder + "Run1.txt"));
  EXPECT_TRUE(files.FileExists(folder + "run?.TXT"));
  EXPECT_TRUE(files.FileExists(folder + "de*"));
  EXPECT_FALSE(files.FileExists(folder + "run?.log"));
  EXPECT_FALSE(files.FileExists(""));
  EXPECT_TRUE(files.FolderExists(folder + "deep/ "));
  EXPECT_FALSE(files.FolderExists(folder + "Run1.txt"));
  EXPECT_FALSE(files.MakeFolder(folder + "Run1.txt"));
  EXPECT_TRUE(files.List(folder + "none", "*").empty());
}

TEST(MatchesPattern, KnowsStarAndQuestionMark) {
  const auto tell = [](const TableRow& row) {
    return MatchesPattern(row.Text(0), row.Text(1)) ? "yes" : "no";
  };
  ExpectTable(tell, R"(
a.txt, *.TXT -> yes | a.txt, *.* -> yes | a, *.* -> no | ab, ? -> no | abcbc, a*bc -> yes | abcbd, a*bc -> no | a, a** -> yes
a.txt.bak, *.txt -> no
)");
  EXPECT_TRUE(MatchesPattern("", "*"));
  EXPECT_FALSE(MatchesPattern("", "?"));
  EXPECT_FALSE(MatchesPattern(std::string(5000, 'a'), "*a*a*a*a*a*a*a*a*b"));
}

}  // namespace
}  // namespace tarnview
