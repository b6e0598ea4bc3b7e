// The manual against the program: no topic without a chapter, no link or picture that leads
// nowhere.

#include <gtest/gtest.h>

#include <filesystem>
#include <set>

#include "base/FileSystem.h"

namespace tarnview {
namespace {

namespace fs = std::filesystem;

std::string TextOf(const fs::path& path) {
  return std::string(RealFileSystem().Read(path.string()).value_or(""));
}

/// What stands between the two texts, wherever they do on one line.
std::set<std::string> Between(const std::string& text, const std::string& before,
                              const std::string& after) {
  std::set<std::string> found;
  for (auto at = text.find(before); at != text.npos; at = text.find(before, at)) {
    at += before.size();
    const auto end = text.find(after, at);
    if (end > at && end < text.find('\n', at)) found.insert(text.substr(at, end - at));
  }
  return found;
}

const fs::path kManual = fs::path(TARNVIEW_DATA) / "Documentation";
const std::string kInstructions = TextOf(kManual / "Instructions.htm");
const std::set<std::string> kChapters = Between(kInstructions, "id=\"", "\"");

TEST(Manual, HasAChapterForEachTopicOfTheProgram) {
  std::set<std::string> topics;
  for (const auto& file :
       fs::recursive_directory_iterator(fs::path(TARNVIEW_TESTS).parent_path() / "src"))
    if (file.path().extension() == ".cpp") {
      const std::string text = TextOf(file.path());
      topics.merge(Between(text, "HelpTopic = \"", "\""));
      topics.merge(Between(text, "Graphs\", \"", "\"}"));  // the lists that are kept in one window
    }
  EXPECT_GE(topics.size(), 5u);
  for (const std::string& topic : topics) EXPECT_TRUE(kChapters.contains(topic)) << topic;
}

TEST(Manual, LinksAndPicturesLeadSomewhere) {
  const std::string contents = TextOf(kManual / "Contents.htm");
  const std::set<std::string> links = Between(contents, "href=\"Instructions.htm#", "\"");
  EXPECT_GE(links.size(), 10u);
  for (const std::string& link : links) EXPECT_TRUE(kChapters.contains(link)) << link;
  for (const std::string& link : Between(kInstructions, "href=\"#", "\""))
    EXPECT_TRUE(kChapters.contains(link)) << link;
  for (const std::string& picture : Between(kInstructions, "src=\"", "\""))
    EXPECT_GT(fs::file_size(kManual / picture), 1000u) << picture;
}

}  // namespace
}  // namespace tarnview
