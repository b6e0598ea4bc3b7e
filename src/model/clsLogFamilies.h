#pragma once

#include <string>
#include <vector>

#include "model/clsFileTypes.h"
#include "model/clsLogDataItems.h"

namespace tarnview {

/// A group of file types that share data items and presets.
class clsLogFamily {
 public:
  std::vector<int> colFileTypes;
  int lngID = 0;
  std::string strDescription;
  std::string strApplicationName;
  bool blnEnabled = true;

  /// The family of Universal logs (id 7) gets "Universal - " before the name.
  void UpdateDescription(const std::string& name);
  bool Holds(int fileType) const;
};

class clsLogFamilies {
 public:
  clsLogFamily& AddDirect(clsLogFamily family);
  int Count() const { return static_cast<int>(families_.size()); }
  clsLogFamily& Item(int id) { return families_[static_cast<std::size_t>(id - 1)]; }
  const clsLogFamily& Item(int id) const { return families_[static_cast<std::size_t>(id - 1)]; }

  /// What lists of families show, in the order of the ids.
  std::vector<std::string> Descriptions() const;
  /// The first family that holds the file type; 0 if none does.
  int FirstLogFamily(int fileType) const;
  /// The family that fits most of the item numbers, the lowest on a tie; 0 with no votes.
  int LogFamilyFromDataItemCollection(const std::vector<int>& itemNumbers,
                                      const clsLogDataItems& items) const;
  /// The id, held to 1 to Count.
  int ValidateLogFamily(int id) const;
  static std::string GetGenericLogFamilyNamePrefix() { return "Universal - "; }

 private:
  std::vector<clsLogFamily> families_;
};

/// The fixed lists of file types and log families.
struct FileKinds {
  clsFileTypes gcolFileTypes;
  clsLogFamilies gcolLogFamilies;
};

/// Builds both; the file types are not enabled yet (the second step of start-up does that).
FileKinds SetUpLogFamilies();

}  // namespace tarnview
