#include "base/MessageTable.h"

#include <algorithm>
#include <iterator>

namespace tarnview {
namespace {

struct QuestionRow {
  Question id;
  const char* text;
};

constexpr MessageRow kMessages[] = {
    // clang-format off
    {Message::RangeShortened, MessageIcon::Information,
     "If you want to display a range of samples greater than 1000, ensure that Quick Graph is checked.\r"
     "The plot range has been shortened."},
    {Message::PowerRangeShortened, MessageIcon::Information,
     "You can't display more than 1000 samples on a Power Graph.  To be frank, if it took that long to do a run "
     "through the rev range you don't want to know what the power and torque are, you just want to junk it.\r"
     "The plot range has been shortened."},
    {Message::TooManyScatterSamples, MessageIcon::Information,
     "You can't display more than 5000 samples on a Scatter Graph without a filter."},
    {Message::ConversionFileNotLoaded, MessageIcon::Exclamation,
     "Unable to load Conversion File.\r"
     "Application default values will be used instead."},
    {Message::OtherEngineSize, MessageIcon::Information,
     "Cannot upload Zone Data from a different engine size to your own."},
    {Message::UploadProgramNotFound, MessageIcon::Information,
     "Data Logging/Upload program cannot be found.  Set its location within Options."},
    {Message::EngineSizeAssumed, MessageIcon::Exclamation,
     "Problem loading engine size - default assumed.\r"
     "WARNING: Before uploading zone data from this file\r"
     "ensure that ALL zone settings contain valid data."},
    {Message::ChipDateAssumed, MessageIcon::Exclamation,
     "Problem loading chip date - default assumed.\r"
     "WARNING: Before uploading zone data from this file\r"
     "ensure that ALL zone settings contain valid data."},
    {Message::PressureAssumed, MessageIcon::Information, "Problem loading atmospheric pressure - default assumed."},
    {Message::NothingChecked, MessageIcon::Information, "You need to select some series to plot on the graph."},
    {Message::ConversionProgramNotFound, MessageIcon::Information,
     "Data Log Conversion Program cannot be found.  Set its location within Options."},
    {Message::TooFewRecords, MessageIcon::Information,
     "Could not load the necessary minimum of three records from the data log."},
    {Message::NoBinaryFileProduced, MessageIcon::Exclamation,
     "No binary data file produced by Data Logging/Upload program."},
    {Message::NoMapFileProduced, MessageIcon::Exclamation, "No map file produced by Data Logging/Upload program."},
    {Message::FileNotLoaded, MessageIcon::Information, "File could not be loaded."},
    {Message::ZonesNotLoaded, MessageIcon::Information, "Problem loading zone settings."},
    {Message::ChangesNotLoaded, MessageIcon::Information,
     "Problem loading lambda/knock changes - original settings duplicated."},
    {Message::BackgroundPictureNotFound, MessageIcon::Information, "Alternative background picture not found."},
    {Message::SomethingWentWrong, MessageIcon::Information, "Something went wrong..."},
    {Message::NoSeriesSelected, MessageIcon::Information, "No graph series selected."},
    {Message::ComparisonFileOfOtherChip, MessageIcon::Exclamation,
     "The Change Comparison File is from a different ECU chip date and/or engine size.\r"
     "A full upload will take place instead."},
    {Message::ComparisonFileNotLoaded, MessageIcon::Exclamation,
     "An error occurred loading the Change Comparison File.\r"
     "A full upload will take place instead."},
    {Message::ComparisonFileNotFound, MessageIcon::Exclamation,
     "The Change Comparison File does not exist.\r"
     "A full upload will take place instead."},
    {Message::NotAnExecutable, MessageIcon::Information,
     "Field needs to contain complete path and file name of an executable."},
    {Message::NothingConverted, MessageIcon::Exclamation, "No output produced by Data Log Conversion Program."},
    {Message::TooFewPowerSamples, MessageIcon::Exclamation, "You can't display less than 10 samples on a Power Graph."},
    {Message::AdvanceLimitNotCopied, MessageIcon::Exclamation,
     "Cannot copy Advance Limit/Intake Air Temp Limit between incompatible chips.\r"
     "Advance Limit/Intake Air Temp Limit will not be copied."},
    {Message::AirTempNotUploaded, MessageIcon::Exclamation,
     "Cannot upload Intake Air Temp settings between incompatible chips.\r"
     "Intake Air Temp settings will not be uploaded."},
    {Message::SettingsFileNotFound, MessageIcon::Exclamation,
     "Application settings file not found. Some basic defaults will be created to get you by."},
    {Message::HelpFailed, MessageIcon::Exclamation, "Problem trying to run on-line help."},
    {Message::OddKindOfFile, MessageIcon::Exclamation, "Why are you trying to load that kind of file?"},
    {Message::WorkingDirectoryNotFound, MessageIcon::Exclamation, "Default Working Directory does not exist."},
    {Message::PowerBenchmarkNotLoaded, MessageIcon::Exclamation, "Problem loading power graph benchmark."},
    {Message::ZoneEditorFailed, MessageIcon::Exclamation,
     "Error opening Zone Data Editor.  Are you sure your Regional Settings are either \r"
     "English (United Kingdom) or English (United States) ?"},
    {Message::NotABinaryFile, MessageIcon::Exclamation,
     "Field needs to contain complete path and file name of a binary file."},
    {Message::FolderNotFound, MessageIcon::Exclamation, "Folder does not exist."},
    {Message::IllegalFileName, MessageIcon::Exclamation, "Illegal file name."},
    {Message::UnknownFileProblem, MessageIcon::Exclamation, "Unknown file system problem."},
    {Message::SettingsNotWritten, MessageIcon::Exclamation, "Problem updating application settings file."},
    {Message::NoPresetSelected, MessageIcon::Information, "No preset graph selected."},
    {Message::NameMissing, MessageIcon::Information, "The name is not optional."},
    {Message::ValueNotRecognised, MessageIcon::Information, "Value not recognised."},
    {Message::DataItemNotFound, MessageIcon::Information,
     "Data Item not found from preset graph definition.\r\n"
     "Default value will be used instead."},
    {Message::NoFilterCriteria, MessageIcon::Information,
     "Filters tend to work best if at least one criteria has been entered!"},
    {Message::FromAboveTo, MessageIcon::Information, "'From' value greater than 'To' value."},
    {Message::NothingMatches, MessageIcon::Information, "No log data matches all the filters."},
    {Message::BenchmarkNameMissing, MessageIcon::Information, "Benchmark requires a name."},
    {Message::LogTooLong, MessageIcon::Exclamation, "Data log too long - only first 300000 lines loaded."},
    {Message::CarDefinitionNotLoaded, MessageIcon::Exclamation, "Problem loading car definition file."},
    {Message::SamplePresetNotLoaded, MessageIcon::Exclamation, "Problem loading preset sample graph file."},
    {Message::ScatterPresetNotLoaded, MessageIcon::Exclamation, "Problem loading preset scatter graph file."},
    {Message::AutoTuningWithEGR, MessageIcon::Information,
     "Wide Band O2 Auto Tuning cannot be set at the same time as Exhaust Gas Recirculation."},
    {Message::PowerGraphNotDrawn, MessageIcon::Exclamation,
     "Problem drawing the Power Graph - please check the Car Definition used."},
    {Message::ExportFailed, MessageIcon::Exclamation, "Problem producing data log export file."},
    {Message::FirstRunCancelled, MessageIcon::Exclamation,
     "Tarnview initial configuration cancelled.\r"
     "Re-run Tarnview to complete the configuration process."},
    {Message::BadColumnAttribute, MessageIcon::Exclamation,
     "Error loading data log definition - invalid column attribute:"},
    {Message::NoColumnDefinitions, MessageIcon::Exclamation,
     "Error loading data log definition - column definitions not found:"},
    {Message::BadHeaderAttribute, MessageIcon::Exclamation,
     "Error loading data log definition - invalid header attribute:"},
    {Message::NoHeaderDefinition, MessageIcon::Exclamation,
     "Error loading data log definition - header definition not found:"},
    {Message::DefinitionFileNotFound, MessageIcon::Exclamation, "Error loading data log definition - file not found:"},
    {Message::ColumnIncomplete, MessageIcon::Exclamation,
     "Error loading data log definition - column data incomplete:"},
    {Message::DuplicateColumn, MessageIcon::Exclamation, "Error loading data log definition - duplicate column:"},
    {Message::ColumnOfOtherType, MessageIcon::Exclamation,
     "Error loading data log definition - column type does not match data item type:"},
    {Message::HeaderIncomplete, MessageIcon::Exclamation,
     "Error loading data log definition - missing mandatory header data:"},
    {Message::BadFileExtension, MessageIcon::Exclamation,
     "Error loading data log definition - invalid file extension:"},
    {Message::ColumnHeadersNotFound, MessageIcon::Exclamation, "Error loading data log - column headers not found:"},
    {Message::NoTimeOrFrequency, MessageIcon::Exclamation,
     "Error loading data log definition - no time column or line frequency:"},
    {Message::DefinitionPathNotValid, MessageIcon::Exclamation,
     "Universal data log definition path and file name not valid:"},
    {Message::DefinitionOfSettingsNotFound, MessageIcon::Exclamation, "Universal data log definition file not found:"},
    {Message::ValuesNotAllowed, MessageIcon::Exclamation,
     "Error loading data log definition - column type does not allow values but definition contains them:"},
    {Message::NoColumnValues, MessageIcon::Exclamation,
     "Error loading data log definition - no column values in definition"},
    {Message::NegativeColumnValue, MessageIcon::Exclamation,
     "Error loading data log definition - column value cannot be negative"},
    {Message::NoColumnsRecognised, MessageIcon::Exclamation, "Error loading data log - no columns recognised:"},
    {Message::DataItemCannotBeUsed, MessageIcon::Exclamation,
     "Error loading data log definition - data item cannot be used:"},
    {Message::DataItemOfDefinitionNotFound, MessageIcon::Exclamation,
     "Error loading data log definition - data item not found:"},
    {Message::DefinitionLoaded, MessageIcon::Information, "Data log definition loaded successfully."},
    {Message::NoRPMColumn, MessageIcon::Exclamation, "Error loading data log definition - no RPM column found:"},
    {Message::NoValidRange, MessageIcon::Exclamation,
     "Error loading data log definition - column minimum and maximum values to not form a valid range:"},
    {Message::NoTimeColumn, MessageIcon::Exclamation,
     "Error loading data log - no time column found (and no fixed frequency in data log definition):"},
    {Message::FileIDTextNotFound, MessageIcon::Exclamation, "File ID Text not found in data log:"},
    {Message::BadDefinitionName, MessageIcon::Exclamation,
     "Error loading data log definition - invalid definition name:"},
    {Message::ItemsNotRelevant, MessageIcon::Information,
     "Problem loading preset graph - data item(s) in preset graph file\r\n"
     "are not relevant to selected Log Family:"},
    {Message::BadSamplePreset, MessageIcon::Exclamation,
     "Error loading data log definition - preset sample graph definition incorrect:"},
    {Message::BadScatterPreset, MessageIcon::Exclamation,
     "Error loading data log definition - preset scatter graph definition incorrect:"},
    {Message::BadScatterFilter, MessageIcon::Exclamation,
     "Error loading data log definition - preset scatter graph filter definition incorrect:"},
    {Message::FilterItemNotInDefinition, MessageIcon::Exclamation,
     "Error loading data log definition - preset scatter graph filter data item not in data log definition:"},
    {Message::FilterValueNotInList, MessageIcon::Exclamation,
     "Error loading data log definition - preset scatter graph filter from value not in data item value list:"},
    {Message::XAxisItemNotInDefinition, MessageIcon::Exclamation,
     "Error loading data log definition - preset scatter graph X-axis data item not in data log definition:"},
    {Message::YAxisItemNotInDefinition, MessageIcon::Exclamation,
     "Error loading data log definition - preset scatter graph Y-axis data item not in data log definition:"},
    {Message::SampleItemNotInDefinition, MessageIcon::Exclamation,
     "Error loading data log definition - preset sample graph data item not in data log definition:"},
    {Message::UnknownDefinitionError, MessageIcon::Exclamation, "Unknown error loading data log definition"},
    // clang-format on
};

constexpr QuestionRow kQuestions[] = {
    {Question::DeleteItem, "Are you sure you want to delete this item?"},
    {Question::DeleteFilter, "Are you sure you want to delete this filter?"},
    {Question::KeepCarChanges, "Do you want to keep Car Definition changes?"},
    {Question::ThrowChangesAway, "Are you sure you want to throw away those changes?"},
    {Question::OverwriteChip,
     "Are you sure you want to overwrite your current chip type and date with those from the data "
     "log?"},
    {Question::LoadDefinition, "Confirming loading of new Universal Data Log definition file?"},
    {Question::LoadDefinitionAndCloseLog,
     "Loading the new Universal Data Log definition file will close the currently loaded "
     "datalog.\r\n"
     "\r\n"
     "Are you sure you want to continue?"},
    {Question::PresetOfOtherFamily,
     "The preset graph definition you are loading is for a different Log Family than that\r\n"
     "currently selected, and may contain data items that are not relevant.\r\n"
     "\r\n"
     "Are you sure you want to continue?"},
    {Question::IncludeLogFamily, "Do you want to include the Log Family in the preset graph file?"},
    {Question::AddDefinitionPresets,
     "The Data Log Definition you have loaded contains Preset Sample and/or Preset Scatter "
     "Graphs.\r\n"
     "Do you want to add these to your existing sets of Preset Sample and Preset Scatter Graphs?"},
    {Question::ConvertToMetric, "Convert field entries from imperial to metric as well?"},
    {Question::ConvertToImperial, "Convert field entries from metric to imperial as well?"},
    {Question::ConvertWeightToMetric, "Convert car contents weight field entry to metric?"},
    {Question::ConvertWeightToImperial, "Convert car contents weight field entry to imperial?"},
};

template <class Table, class Id>
auto RowOf(const Table& table, Id id) -> decltype(&*std::begin(table)) {
  const auto found = std::find_if(std::begin(table), std::end(table),
                                  [id](const auto& row) { return row.id == id; });
  if (found == std::end(table)) return nullptr;
  return &*found;
}

}  // namespace

const MessageRow* FindMessage(Message id) { return RowOf(kMessages, id); }

const char* QuestionText(Question id) {
  const QuestionRow* row = RowOf(kQuestions, id);
  if (row) return row->text;
  return "Do you want to proceed?";
}

}  // namespace tarnview
