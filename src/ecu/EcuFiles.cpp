#include "ecu/EcuFiles.h"

#include "base/Paths.h"

namespace tarnview {

LoggerFiles::LoggerFiles(const Settings& settings) : folder(GetParentFolder(settings.gstrLogEXE)) {}

ConverterFiles::ConverterFiles(const Settings& settings)
    : folder(GetParentFolder(settings.gstrConversionEXE)) {}

std::vector<std::string> Leftovers(const std::string& folder) {
  return {folder + "miata.dat", folder + "miata.map", folder + "miatatmp.bin",
          folder + "miatatmp.txt"};
}

std::string NewDataLogDescription(const std::string& path) {
  return "[General]\r\nPath and Filename=" + path + "\r\n";
}

std::string UploadCommandRecord(const ProgramCall& call) {
  return "Tarnview Upload Command File\r\n\r\n" + call.Text() + "\r\n";
}

}  // namespace tarnview
