#pragma once

#include <functional>
#include <string>

namespace tarnview {

/// The numbered messages. The numbers are those that users and scripts know; the texts stand in
/// MessageTable.cpp.
enum class Message : int {
  RangeShortened = 1,
  PowerRangeShortened = 2,
  TooManyScatterSamples = 3,
  ConversionFileNotLoaded = 4,
  OtherEngineSize = 5,
  UploadProgramNotFound = 6,
  EngineSizeAssumed = 7,
  ChipDateAssumed = 8,
  PressureAssumed = 9,
  NothingChecked = 10,
  ConversionProgramNotFound = 11,
  TooFewRecords = 12,
  NoBinaryFileProduced = 13,
  NoMapFileProduced = 14,
  FileNotLoaded = 15,
  ZonesNotLoaded = 16,
  ChangesNotLoaded = 17,
  BackgroundPictureNotFound = 18,
  SomethingWentWrong = 19,
  NoSeriesSelected = 20,
  ComparisonFileOfOtherChip = 21,
  ComparisonFileNotLoaded = 22,
  ComparisonFileNotFound = 23,
  NotAnExecutable = 24,
  NothingConverted = 25,
  TooFewPowerSamples = 26,
  AdvanceLimitNotCopied = 27,
  AirTempNotUploaded = 28,
  SettingsFileNotFound = 29,
  HelpFailed = 30,
  OddKindOfFile = 31,
  WorkingDirectoryNotFound = 32,
  PowerBenchmarkNotLoaded = 33,
  ZoneEditorFailed = 34,
  NotABinaryFile = 35,
  FolderNotFound = 36,
  IllegalFileName = 37,
  UnknownFileProblem = 38,
  SettingsNotWritten = 39,
  NoPresetSelected = 40,
  NameMissing = 41,
  ValueNotRecognised = 42,
  DataItemNotFound = 43,
  NoFilterCriteria = 44,
  FromAboveTo = 45,
  NothingMatches = 46,
  BenchmarkNameMissing = 47,
  LogTooLong = 51,
  NotAnFMLinkLog = 52,
  NotALinkPlusLog = 53,
  NotATec2Log = 54,
  NotATec3Log = 55,
  NotAMapFile = 56,
  CarDefinitionNotLoaded = 57,
  SamplePresetNotLoaded = 58,
  NotAUTECCSVLog = 59,
  NotAUTECFixedLog = 60,
  ScatterPresetNotLoaded = 61,
  AutoTuningWithEGR = 62,
  PowerGraphNotDrawn = 63,
  ExportFailed = 64,
  FirstRunCancelled = 65,
  BadColumnAttribute = 66,
  NoColumnDefinitions = 67,
  BadHeaderAttribute = 68,
  NoHeaderDefinition = 69,
  DefinitionFileNotFound = 70,
  ColumnIncomplete = 71,
  DuplicateColumn = 72,
  ColumnOfOtherType = 73,
  HeaderIncomplete = 74,
  BadFileExtension = 75,
  ColumnHeadersNotFound = 76,
  NoTimeOrFrequency = 77,
  DefinitionPathNotValid = 78,
  DefinitionOfSettingsNotFound = 79,
  ValuesNotAllowed = 80,
  NoColumnValues = 81,
  NegativeColumnValue = 82,
  NoColumnsRecognised = 83,
  DataItemCannotBeUsed = 84,
  DataItemOfDefinitionNotFound = 85,
  DefinitionLoaded = 86,
  NoRPMColumn = 87,
  NoValidRange = 88,
  NoTimeColumn = 89,
  FileIDTextNotFound = 90,
  BadDefinitionName = 91,
  ItemsNotRelevant = 92,
  BadSamplePreset = 93,
  BadScatterPreset = 94,
  BadScatterFilter = 95,
  FilterItemNotInDefinition = 96,
  FilterValueNotInList = 97,
  XAxisItemNotInDefinition = 98,
  YAxisItemNotInDefinition = 99,
  SampleItemNotInDefinition = 100,
  UnknownDefinitionError = 101,
};

/// The questions with Yes and No.
enum class Question : int {
  DeleteItem = 1,
  DeleteFilter = 2,
  KeepCarChanges = 3,
  ThrowChangesAway = 4,
  OverwriteChip = 5,
  LoadDefinition = 6,
  LoadDefinitionAndCloseLog = 7,
  PresetOfOtherFamily = 8,
  IncludeLogFamily = 9,
  AddDefinitionPresets = 10,
  ConvertToMetric = 11,
  ConvertToImperial = 12,
  ConvertWeightToMetric = 13,
  ConvertWeightToImperial = 14,
};

/// A message's picture, with the desktop's number for it.
enum class MessageIcon : int { Exclamation = 48, Information = 64 };

struct MessageRow {
  Message id;
  MessageIcon icon;
  const char* text;
};

/// The row of a message; nullptr for one whose text is put together elsewhere ("That doesn't look
/// like a ...").
const MessageRow* FindMessage(Message id);
/// "Do you want to proceed?" for a question that is not in the table.
const char* QuestionText(Question id);

/// How a room that shows nothing itself tells the user: `extra` is the bad item's name, or empty.
using TellMessage = std::function<void(Message id, const std::string& extra)>;

}  // namespace tarnview
