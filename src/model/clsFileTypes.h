#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarnview {

enum FileType : int {
  kUnknownFile = 0,
  kFMLinkLog = 1,
  kMAPFile = 2,
  kTec2Log = 3,
  kTec3Log = 4,
  kLinkPlusLog = 5,
  kUTECCSVLog = 6,
  kUTECFixedLog = 7,
  kUniversalLog = 8
};

/// A kind of file that the program opens.
class clsFileType {
 public:
  std::string strFileExtension;  ///< may hold several: "csv;*.dat;*.txt"
  std::string strDescription;
  bool blnEnabled = false;
  int lngID = 0;

  /// "FM Link Data Logs (*.txt)|*.txt"
  std::string CommonDialogFilter() const;
  /// strDescription without a last "S" or "s".
  std::string GetSingularDescription() const;
  /// `force`, or id 8, puts "Universal - " before the name.
  void UpdateDescription(const std::string& name, const std::string& extension, bool force = false);
};

class clsFileTypes {
 public:
  clsFileType& AddDirect(clsFileType type);
  int Count() const { return static_cast<int>(types_.size()); }
  /// By id, which is also the position, from 1.
  clsFileType& Item(int id) { return types_[static_cast<std::size_t>(id - 1)]; }
  const clsFileType& Item(int id) const { return types_[static_cast<std::size_t>(id - 1)]; }

  /// The filters of the enabled types, joined by "|".
  std::string CommonDialogFilter() const;
  /// Position from 1 among the enabled types; one past the end if it is not there.
  int SequenceFromID(int id) const;
  /// The id of the n-th enabled type; 1 if n is out of range.
  int IDFromSequence(int n) const;
  /// By the path's extension; `defaultType` where none, or several with it among them, match.
  int GuessFileType(std::string_view path, int defaultType) const;
  bool SaveableFileType(int id) const;
  /// The id, held to 1 to Count.
  int ValidateFileType(int id) const;
  static std::string GetGenericFileTypeNamePrefix() { return "Universal - "; }

 private:
  std::vector<clsFileType> types_;
};

}  // namespace tarnview
