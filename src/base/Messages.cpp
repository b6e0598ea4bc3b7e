#include "base/Messages.h"

#include <utility>

namespace tarnview {
namespace {

struct Message {
  int id;
  int style;
  const char* text;
};

constexpr Message kMessages[] = {
    {1, kBoxInformation,
     "If you want to display a range of samples greater than 1000, ensure that Quick Graph is checked.\r"
     "The plot range has been shortened."},
    {2, kBoxInformation,
     "You can't display more than 1000 samples on a Power Graph.  To be frank, if it took that long to do a run "
     "through the rev range you don't want to know what the power and torque are, you just want to junk it.\r"
     "The plot range has been shortened."},
    {3, kBoxInformation, "You can't display more than 5000 samples on a Scatter Graph without a filter."},
    {4, kBoxExclamation,
     "Unable to load Conversion File.\r"
     "Application default values will be used instead."},
    {5, kBoxInformation, "Cannot upload Zone Data from a different engine size to your own."},
    {6, kBoxInformation, "Data Logging/Upload program cannot be found.  Set its location within Options."},
    {7, kBoxExclamation,
     "Problem loading engine size - default assumed.\r"
     "WARNING: Before uploading zone data from this file\r"
     "ensure that ALL zone settings contain valid data."},
    {8, kBoxExclamation,
     "Problem loading chip date - default assumed.\r"
     "WARNING: Before uploading zone data from this file\r"
     "ensure that ALL zone settings contain valid data."},
    {9, kBoxInformation, "Problem loading atmospheric pressure - default assumed."},
    {10, kBoxInformation, "You need to select some series to plot on the graph."},
    {11, kBoxInformation, "Data Log Conversion Program cannot be found.  Set its location within Options."},
    {12, kBoxInformation, "Could not load the necessary minimum of three records from the data log."},
    {13, kBoxExclamation, "No binary data file produced by Data Logging/Upload program."},
    {14, kBoxExclamation, "No map file produced by Data Logging/Upload program."},
    {15, kBoxInformation, "File could not be loaded."},
    {16, kBoxInformation, "Problem loading zone settings."},
    {17, kBoxInformation, "Problem loading lambda/knock changes - original settings duplicated."},
    {18, kBoxInformation, "Alternative background picture not found."},
    {19, kBoxInformation, "Something went wrong..."},
    {20, kBoxInformation, "No graph series selected."},
    {21, kBoxExclamation,
     "The Change Comparison File is from a different ECU chip date and/or engine size.\r"
     "A full upload will take place instead."},
    {22, kBoxExclamation,
     "An error occurred loading the Change Comparison File.\r"
     "A full upload will take place instead."},
    {23, kBoxExclamation,
     "The Change Comparison File does not exist.\r"
     "A full upload will take place instead."},
    {24, kBoxInformation, "Field needs to contain complete path and file name of an executable."},
    {25, kBoxExclamation, "No output produced by Data Log Conversion Program."},
    {26, kBoxExclamation, "You can't display less than 10 samples on a Power Graph."},
    {27, kBoxExclamation,
     "Cannot copy Advance Limit/Intake Air Temp Limit between incompatible chips.\r"
     "Advance Limit/Intake Air Temp Limit will not be copied."},
    {28, kBoxExclamation,
     "Cannot upload Intake Air Temp settings between incompatible chips.\r"
     "Intake Air Temp settings will not be uploaded."},
    {29, kBoxExclamation, "Application settings file not found. Some basic defaults will be created to get you by."},
    {30, kBoxExclamation, "Problem trying to run on-line help."},
    {31, kBoxExclamation, "Why are you trying to load that kind of file?"},
    {32, kBoxExclamation, "Default Working Directory does not exist."},
    {33, kBoxExclamation, "Problem loading power graph benchmark."},
    {34, kBoxExclamation,
     "Error opening Zone Data Editor.  Are you sure your Regional Settings are either \r"
     "English (United Kingdom) or English (United States) ?"},
    {35, kBoxExclamation, "Field needs to contain complete path and file name of a binary file."},
    {36, kBoxExclamation, "Folder does not exist."},
    {37, kBoxExclamation, "Illegal file name."},
    {38, kBoxExclamation, "Unknown file system problem."},
    {39, kBoxExclamation, "Problem updating application settings file."},
    {40, kBoxInformation, "No preset graph selected."},
    {41, kBoxInformation, "The name is not optional."},
    {42, kBoxInformation, "Value not recognised."},
    {43, kBoxInformation,
     "Data Item not found from preset graph definition.\r\n"
     "Default value will be used instead."},
    {44, kBoxInformation, "Filters tend to work best if at least one criteria has been entered!"},
    {45, kBoxInformation, "'From' value greater than 'To' value."},
    {46, kBoxInformation, "No log data matches all the filters."},
    {47, kBoxInformation, "Benchmark requires a name."},
    {51, kBoxExclamation, "Data log too long - only first 300000 lines loaded."},
    {57, kBoxExclamation, "Problem loading car definition file."},
    {58, kBoxExclamation, "Problem loading preset sample graph file."},
    {61, kBoxExclamation, "Problem loading preset scatter graph file."},
    {62, kBoxInformation, "Wide Band O2 Auto Tuning cannot be set at the same time as Exhaust Gas Recirculation."},
    {63, kBoxExclamation, "Problem drawing the Power Graph - please check the Car Definition used."},
    {64, kBoxExclamation, "Problem producing data log export file."},
    {65, kBoxExclamation,
     "Tarnview initial configuration cancelled.\r"
     "Re-run Tarnview to complete the configuration process."},
    {66, kBoxExclamation, "Error loading data log definition - invalid column attribute:"},
    {67, kBoxExclamation, "Error loading data log definition - column definitions not found:"},
    {68, kBoxExclamation, "Error loading data log definition - invalid header attribute:"},
    {69, kBoxExclamation, "Error loading data log definition - header definition not found:"},
    {70, kBoxExclamation, "Error loading data log definition - file not found:"},
    {71, kBoxExclamation, "Error loading data log definition - column data incomplete:"},
    {72, kBoxExclamation, "Error loading data log definition - duplicate column:"},
    {73, kBoxExclamation, "Error loading data log definition - column type does not match data item type:"},
    {74, kBoxExclamation, "Error loading data log definition - missing mandatory header data:"},
    {75, kBoxExclamation, "Error loading data log definition - invalid file extension:"},
    {76, kBoxExclamation, "Error loading data log - column headers not found:"},
    {77, kBoxExclamation, "Error loading data log definition - no time column or line frequency:"},
    {78, kBoxExclamation, "Universal data log definition path and file name not valid:"},
    {79, kBoxExclamation, "Universal data log definition file not found:"},
    {80, kBoxExclamation,
     "Error loading data log definition - column type does not allow values but definition contains them:"},
    {81, kBoxExclamation, "Error loading data log definition - no column values in definition"},
    {82, kBoxExclamation, "Error loading data log definition - column value cannot be negative"},
    {83, kBoxExclamation, "Error loading data log - no columns recognised:"},
    {84, kBoxExclamation, "Error loading data log definition - data item cannot be used:"},
    {85, kBoxExclamation, "Error loading data log definition - data item not found:"},
    {86, kBoxInformation, "Data log definition loaded successfully."},
    {87, kBoxExclamation, "Error loading data log definition - no RPM column found:"},
    {88, kBoxExclamation,
     "Error loading data log definition - column minimum and maximum values to not form a valid range:"},
    {89, kBoxExclamation,
     "Error loading data log - no time column found (and no fixed frequency in data log definition):"},
    {90, kBoxExclamation, "File ID Text not found in data log:"},
    {91, kBoxExclamation, "Error loading data log definition - invalid definition name:"},
    {92, kBoxInformation,
     "Problem loading preset graph - data item(s) in preset graph file\r\n"
     "are not relevant to selected Log Family:"},
    {93, kBoxExclamation, "Error loading data log definition - preset sample graph definition incorrect:"},
    {94, kBoxExclamation, "Error loading data log definition - preset scatter graph definition incorrect:"},
    {95, kBoxExclamation, "Error loading data log definition - preset scatter graph filter definition incorrect:"},
    {96, kBoxExclamation,
     "Error loading data log definition - preset scatter graph filter data item not in data log definition:"},
    {97, kBoxExclamation,
     "Error loading data log definition - preset scatter graph filter from value not in data item value list:"},
    {98, kBoxExclamation,
     "Error loading data log definition - preset scatter graph X-axis data item not in data log definition:"},
    {99, kBoxExclamation,
     "Error loading data log definition - preset scatter graph Y-axis data item not in data log definition:"},
    {100, kBoxExclamation,
     "Error loading data log definition - preset sample graph data item not in data log definition:"},
    {101, kBoxExclamation, "Unknown error loading data log definition"},
};

/// The messages of a file that is not of the kind that it was opened as.
struct WrongFile {
  int id;
  int fileType;
  int lengthFrom;  ///< file type whose description's length, less one, is where the name is cut
};

constexpr WrongFile kWrongFiles[] = {
    {52, 1, 1},
    {53, 5, 5},
    {54, 3, 3},
    {55, 4, 4},
    {56, 2, 2},
    {59, 6, 6},
    // Kept as it has always read: "That doesn't look like a UTEC Fixed-Width  file to me.", with two blanks.
    {60, 7, 6},
};

constexpr std::pair<int, const char*> kQuestions[] = {
    {1, "Are you sure you want to delete this item?"},
    {2, "Are you sure you want to delete this filter?"},
    {3, "Do you want to keep Car Definition changes?"},
    {4, "Are you sure you want to throw away those changes?"},
    {5, "Are you sure you want to overwrite your current chip type and date with those from the data log?"},
    {6, "Confirming loading of new Universal Data Log definition file?"},
    {7,
     "Loading the new Universal Data Log definition file will close the currently loaded datalog.\r\n"
     "\r\n"
     "Are you sure you want to continue?"},
    {8,
     "The preset graph definition you are loading is for a different Log Family than that\r\n"
     "currently selected, and may contain data items that are not relevant.\r\n"
     "\r\n"
     "Are you sure you want to continue?"},
    {9, "Do you want to include the Log Family in the preset graph file?"},
    {10,
     "The Data Log Definition you have loaded contains Preset Sample and/or Preset Scatter Graphs.\r\n"
     "Do you want to add these to your existing sets of Preset Sample and Preset Scatter Graphs?"},
    {11, "Convert field entries from imperial to metric as well?"},
    {12, "Convert field entries from metric to imperial as well?"},
    {13, "Convert car contents weight field entry to metric?"},
    {14, "Convert car contents weight field entry to imperial?"},
};

template <class Table>
auto* RowOf(const Table& table, int id) {
  for (const auto& row : table)
    if (row.id == id) return &row;
  return static_cast<decltype(&table[0])>(nullptr);
}

}  // namespace

Messages::Messages(Host& host, std::function<std::string(int)> fileTypeDescription)
    : host_(host), fileTypeDescription_(std::move(fileTypeDescription)) {}

void Messages::ShowMessage(int id, bool nonModal, const std::string& extra) {
  const std::string text = TextWith(id, extra);
  if (nonModal && ShowNonModal)
    ShowNonModal(id, text);
  else
    host_.Ask({id, text, Style(id), kApplicationTitle});
}

void Messages::ShowMessageWithOffer(int id, const std::string& extra, const std::string& offer,
                                    std::function<void()> take) {
  host_.Ask({id, TextWith(id, extra), Style(id), kApplicationTitle, offer, std::move(take)});
}

bool Messages::AskQuestion(int id, bool defaultNo) {
  return Tell(QuestionText(id), kBoxYesNo | kBoxQuestion | (defaultNo ? kBoxSecondIsDefault : 0)) == Reply::Yes;
}

Reply Messages::Tell(const std::string& text, int style) { return host_.Ask({0, text, style, kApplicationTitle}); }

std::string Messages::TextWith(int id, const std::string& extra) const {
  return extra.empty() ? Text(id) : Text(id) + "\r\n\r\n" + extra;
}

std::string Messages::Text(int id) const {
  if (const Message* message = RowOf(kMessages, id)) return message->text;
  const WrongFile* wrong = RowOf(kWrongFiles, id);
  if (!wrong) return "Unknown error.";
  const auto description = [this](int type) { return fileTypeDescription_ ? fileTypeDescription_(type) : ""; };
  const std::size_t length = description(wrong->lengthFrom).size();
  return "That doesn't look like a " + description(wrong->fileType).substr(0, length > 0 ? length - 1 : 0) +
         " file to me.\r\nPlease ensure correct file type is chosen when opening a file.";
}

int Messages::Style(int id) {
  const Message* message = RowOf(kMessages, id);
  return message ? message->style : kBoxExclamation;
}

std::string Messages::QuestionText(int id) {
  for (const auto& [question, text] : kQuestions)
    if (question == id) return text;
  return "Do you want to proceed?";
}

}  // namespace tarnview
