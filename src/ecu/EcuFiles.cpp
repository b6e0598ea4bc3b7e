#include "ecu/EcuFiles.h"

#include "base/Paths.h"

namespace tarnview {

LoggerFiles::LoggerFiles(const Settings& settings) : folder(GetParentFolder(settings.gstrLogEXE)) {}

ConverterFiles::ConverterFiles(const Settings& settings) : folder(GetParentFolder(settings.gstrConversionEXE)) {}

void DeleteLeftovers(FileSystem& files, const std::string& folder) {
  for (const char* name : {"miata.dat", "miata.map", "miatatmp.bin", "miatatmp.txt"})
    if (files.FileExists(folder + name)) files.DeleteFile(folder + name);
}

std::string NewDataLogDescription(const std::string& path) { return "[General]\r\nPath and Filename=" + path + "\r\n"; }

std::string UploadCommandRecord(const ProgramCall& call) {
  return "Tarnview Upload Command File\r\n\r\n" + call.Text() + "\r\n";
}

}  // namespace tarnview
