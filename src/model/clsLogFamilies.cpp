#include "model/clsLogFamilies.h"

#include <algorithm>

#include "base/Text.h"

namespace tarnview {
namespace {

constexpr int kUniversalFamily = 7;

struct TypeRow {
  int id;
  const char* description;
  const char* extension;
};

constexpr TypeRow kFileTypes[] = {
    {kFMLinkLog, "FM Link Data Logs", "txt"},
    {kMAPFile, "FM Link MAP Files", "map"},
    {kTec2Log, "Tec-2 Data Logs", "dat"},
    {kTec3Log, "Tec-3 Data Logs", "dat"},
    {kLinkPlusLog, "LinkPlus Data Logs", "txt"},
    // Goes into a dialog's filter behind "*.", hence its form.
    {kUTECCSVLog, "UTEC CSV Data Logs", "csv;*.dat;*.txt;*.log;*.utc"},
    {kUTECFixedLog, "UTEC Fixed-Width Data Logs", "txt"},
    {kUniversalLog, "Universal Data Logs", "txt"},
};

struct FamilyRow {
  int id;
  const char* description;
  const char* application;
  int fileTypes[2];  ///< 0 for none
};

constexpr FamilyRow kLogFamilies[] = {
    {1, "Flyin' Miata Link Full", "Kestrelbox", {kFMLinkLog, kMAPFile}},
    {2, "Flyin' Miata Link Data Log", "FM Link Data Log", {kFMLinkLog, kMAPFile}},
    {3, "Electromotive Tec-2 Data Log", "Tec-2 Data Log", {kTec2Log}},
    {4, "Electromotive Tec-3 Data Log", "Tec-3 Data Log", {kTec3Log}},
    {5, "Link Plus Data Log", "Link Plus Data Log", {kLinkPlusLog}},
    {6, "TurboXS UTEC Data Log", "UTEC Data Log", {kUTECCSVLog, kUTECFixedLog}},
    {kUniversalFamily, "Universal Data Log", "Generic Data Log", {kUniversalLog}},
};

}  // namespace

void clsLogFamily::UpdateDescription(const std::string& name) {
  const bool universal = lngID == kUniversalFamily;
  strDescription = TextIf(universal, clsLogFamilies::GetGenericLogFamilyNamePrefix()) + name;
}

bool clsLogFamily::Holds(int fileType) const {
  return std::find(colFileTypes.begin(), colFileTypes.end(), fileType) != colFileTypes.end();
}

clsLogFamily& clsLogFamilies::AddDirect(clsLogFamily family) {
  return families_.emplace_back(std::move(family));
}

std::vector<std::string> clsLogFamilies::Descriptions() const {
  std::vector<std::string> descriptions;
  for (const clsLogFamily& family : families_) descriptions.push_back(family.strDescription);
  return descriptions;
}

int clsLogFamilies::FirstLogFamily(int fileType) const {
  for (const clsLogFamily& family : families_)
    if (family.Holds(fileType)) return family.lngID;
  return 0;
}

int clsLogFamilies::LogFamilyFromDataItemCollection(const std::vector<int>& itemNumbers,
                                                    const clsLogDataItems& items) const {
  std::vector<int> votes(families_.size() + 1);  // by family id; nobody votes for 0
  for (const int number : itemNumbers) {
    if (number < 1 || number > items.Count()) continue;
    for (const int family : items.Item(number).colApplicableLogFamilies)
      if (family >= 1 && family <= Count()) ++votes[static_cast<std::size_t>(family)];
  }
  return static_cast<int>(std::max_element(votes.begin(), votes.end()) - votes.begin());
}

int clsLogFamilies::ValidateLogFamily(int id) const { return std::max(std::min(id, Count()), 1); }

FileKinds SetUpLogFamilies() {
  FileKinds kinds;
  for (const TypeRow& row : kFileTypes) {
    clsFileType type;
    type.lngID = row.id;
    type.strDescription = row.description;
    type.strFileExtension = row.extension;
    kinds.gcolFileTypes.AddDirect(std::move(type));
  }
  for (const FamilyRow& row : kLogFamilies) {
    clsLogFamily family;
    family.lngID = row.id;
    family.strDescription = row.description;
    family.strApplicationName = row.application;
    for (const int type : row.fileTypes)
      if (type != 0) family.colFileTypes.push_back(type);
    kinds.gcolLogFamilies.AddDirect(std::move(family));
  }
  return kinds;
}

}  // namespace tarnview
