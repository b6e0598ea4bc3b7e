#include "universal/DefinitionFiles.h"

#include <exception>

#include "base/Paths.h"
#include "base/TextFile.h"
#include "universal/DefaultDataLogDefinition.h"
#include "universal/DefinitionFaults.h"
#include "universal/DefinitionReader.h"

namespace tarnview {
namespace {

constexpr int kFileAccessError = 75;  // of the run-time

}  // namespace

clsDataLog DefinitionFiles::Load(const std::string& path) {
  if (!files_.FileExists(path)) throw DefinitionFault(Message::DefinitionFileNotFound, path);
  const auto text = ReadText(files_, path);
  if (!text) throw RuntimeError(kFileAccessError, "Path/File access error");
  return ReadDataLogDefinition(*text, path, catalogue_);
}

std::optional<clsDataLog> DefinitionFiles::LoadDataLogDefinition(const std::string& strFileName,
                                                                 bool blnQuiet) {
  const auto fail = [&](Message message, const RuntimeError& error) {
    if (!blnQuiet) tell_(message, error.what());
    errors_.LogError("modUniversal", "LoadDataLogDefinition", error, false);
    return std::nullopt;
  };
  try {
    return Load(strFileName);
  } catch (const DefinitionFault& fault) {
    return fail(fault.Told(), fault);
  } catch (const RuntimeError& error) {
    return fail(Message::UnknownDefinitionError, error);
  } catch (const std::exception& error) {
    return fail(Message::UnknownDefinitionError, RuntimeError(7, error.what()));
  }
}

clsDataLog DefinitionFiles::LoadDataLogDefinitionWrapper(const std::string& strFileName) {
  if (strFileName.empty()) return DefaultDataLogDefinition();
  auto definition = LoadDataLogDefinition(strFileName);
  if (!definition) return DefaultDataLogDefinition();
  return std::move(*definition);
}

std::vector<DefinitionChoice> DefinitionFiles::GenericFileLocation(const std::string& folder) {
  std::vector<DefinitionChoice> choices;
  for (const std::string& name : files_.List(folder, "*.txt")) {
    const std::string path = AddBackslash(folder) + name;
    if (const auto definition = LoadDataLogDefinition(path, true))
      choices.push_back({definition->strName, path});
  }
  return choices;
}

}  // namespace tarnview
