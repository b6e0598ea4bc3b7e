// Plays the programs that talk to the ECU, by the script "NAME.script" beside it, one line at a
// time:
//
//     words FILE          writes its own words into a file of the folder that it was started in
//     write FILE TEXT     writes a file
//     half FILE TEXT      writes the first half of the text
//     copy FROM TO        copies a file
//     wait FILE           until that file is there
//     kill                dies as from a fault
//     exit CODE           ends with that code; without the line, with 0

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <thread>

namespace {

namespace fs = std::filesystem;

void Write(const std::string& file, const std::string& text) {
  std::ofstream(file, std::ios::binary) << text;
}

std::string Rest(std::istringstream& line) {
  std::string text;
  std::getline(line >> std::ws, text);
  return text;
}

void Do(std::istringstream& line, const std::string& verb, const std::string& ownWords) {
  std::string file;
  line >> file;
  if (verb == "words") Write(file, ownWords);
  if (verb == "write") Write(file, Rest(line));
  if (verb == "copy") fs::copy_file(file, Rest(line), fs::copy_options::overwrite_existing);
  if (verb == "exit") std::exit(std::atoi(file.c_str()));
  if (verb == "kill") std::abort();
  if (verb == "half") {
    const std::string text = Rest(line);
    Write(file, text.substr(0, text.size() / 2));
  }
  if (verb == "wait")
    while (!fs::exists(file)) std::this_thread::sleep_for(std::chrono::milliseconds(5));
}

}  // namespace

int main(int count, char** words) {
  std::string ownWords;
  for (int n = 0; n < count; ++n) ownWords += std::string(words[n]) + "|";
  std::ifstream script(std::string(words[0]) + ".script");
  for (std::string text; std::getline(script, text);) {
    std::istringstream line(text);
    std::string verb;
    line >> verb;
    Do(line, verb, ownWords);
  }
  return 0;
}
