#pragma once

#include <fstream>
#include <string>

#include "model/Column.h"

namespace tarnview {

/// A settings file as it is written, with every key on another value than its default.
inline std::string FullSettings() {
  std::ifstream file(TARNVIEW_TESTS "/app/full_settings.ini", std::ios::binary);
  std::string text;
  for (std::string row; std::getline(file, row);) text += row + "\r\n";
  for (int line = 0; line < 16; ++line) {
    text += "Benchmark 1 Data Line " + std::to_string(line) + "=";
    for (int c = 0; c < 16; ++c) text += " " + std::to_string(100 + line + c);
    text += "\r\n";
  }
  text +=
      "[Recently Used Files]\r\nFile 0=3|/logs/b.dat\r\nFile 1=1|/logs/a.txt\r\n"
      "[Recently Used Power Graph Files]\r\nFile 0=/logs/b.pow\r\nFile 1=/logs/a.pow\r\n";
  for (const char* section :
       {"Data Item Display Properties", "Generic Data Item Display Properties"}) {
    text += std::string("[") + section + "]\r\n";
    for (int item = 1; item <= kColumnCount; ++item) {
      const std::string key = "Item " + std::to_string(item) + " ";
      const bool universal = section[0] == 'G';
      text += key + "Colour=" + std::to_string(item + (universal ? 1000 : 0)) + "\r\n" + key +
              "Style=2\r\n" + key + "Width=4\r\n" + key +
              "Display=" + (item == 9 ? "False" : "True") + "\r\n" + key +
              "Display Factor=" + (universal ? "0.25" : "2.5") + "\r\n";
    }
  }
  return text;
}

}  // namespace tarnview
