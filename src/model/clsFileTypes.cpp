#include "model/clsFileTypes.h"

#include <algorithm>

#include "base/Paths.h"
#include "base/Text.h"

namespace tarnview {
namespace {

bool Opens(const clsFileType& type, const std::string& upperExtension) {
  return Upper(type.strFileExtension).find(upperExtension) != std::string::npos;
}

}  // namespace

std::string clsFileType::CommonDialogFilter() const {
  return strDescription + " (*." + strFileExtension + ")|*." + strFileExtension;
}

std::string clsFileType::GetSingularDescription() const {
  std::string one = strDescription;
  if (one.ends_with('s') || one.ends_with('S')) one.pop_back();
  return one;
}

void clsFileType::UpdateDescription(const std::string& name, const std::string& extension,
                                    bool force) {
  const bool universal = force || lngID == kUniversalLog;
  strDescription = TextIf(universal, clsFileTypes::GetGenericFileTypeNamePrefix()) + name;
  strFileExtension = extension;
}

clsFileType& clsFileTypes::AddDirect(clsFileType type) {
  return types_.emplace_back(std::move(type));
}

std::string clsFileTypes::CommonDialogFilter() const {
  std::vector<std::string> filters;
  for (const clsFileType& type : types_)
    if (type.blnEnabled) filters.push_back(type.CommonDialogFilter());
  return Join(filters, "|");
}

int clsFileTypes::SequenceFromID(int id) const {
  int sequence = 1;
  for (const clsFileType& type : types_) {
    if (!type.blnEnabled) continue;
    if (type.lngID == id) break;
    ++sequence;
  }
  return sequence;
}

int clsFileTypes::IDFromSequence(int n) const {
  for (const clsFileType& type : types_)
    if (type.blnEnabled && --n == 0) return type.lngID;
  return 1;
}

int clsFileTypes::GuessFileType(std::string_view path, int defaultType) const {
  const std::string extension = Upper(GetExtension(path));
  if (extension.empty()) return defaultType;
  int matches = 0, last = defaultType;
  for (const clsFileType& type : types_) {
    if (!type.blnEnabled || !Opens(type, extension)) continue;
    ++matches;
    last = type.lngID;
  }
  const bool defaultOpens =
      defaultType >= 1 && defaultType <= Count() && Opens(Item(defaultType), extension);
  if (matches > 1 && defaultOpens) return defaultType;
  return last;
}

bool clsFileTypes::SaveableFileType(int id) const { return id == kFMLinkLog || id == kMAPFile; }

int clsFileTypes::ValidateFileType(int id) const { return std::max(std::min(id, Count()), 1); }

}  // namespace tarnview
