#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "base/Dates.h"
#include "base/Numbers.h"
#include "model/IniFile.h"
#include "model/SettingLimits.h"

namespace tarnview {

// A record of the settings file is a table of keys: each row says which member a key holds and by
// which rule its text is read and written, so that reader and writer walk the same table.

/// What a whole or floating number outside its limits becomes.
enum class IniBeyond { Clamped, Left };

/// How a flag is read and written; FlagText has the texts in this order.
enum class IniFlagForm {
  Number,      ///< "1" or "0"; any number but 0 is on
  OnUnlessN,   ///< "Y" or "N"; any text but "N" is on
  OffUnlessY,  ///< "Y" or "N"; only "Y" is on
  TrueOrNot    ///< "True" or "False"; only "True" is on
};

template <class Record>
struct IniText {
  std::string Record::*value;
};
template <class Record>
struct IniWhole {
  std::int32_t Record::*value;
  Limits limits = kAnyWhole;
  IniBeyond beyond = IniBeyond::Clamped;
};
template <class Record>
struct IniNumber {
  double Record::*value;
  double least = std::numeric_limits<double>::lowest(), most = std::numeric_limits<double>::max();
  IniBeyond beyond = IniBeyond::Clamped;
};
template <class Record>
struct IniFlag {
  bool Record::*value;
  IniFlagForm form;
};
template <class Record>
struct IniDate {
  Date Record::*value;  ///< "yyyy-mm-dd"; left as it is by a text that is no date
};
/// A rule of its own.
template <class Record>
struct IniRule {
  void (*read)(Record& record, std::string_view text);
  std::string (*write)(const Record& record);
  const char* limits = "";  ///< in words
};

/// Where a user sets a value: a page of the Options window or another window, and the control
/// there. Empty: nowhere, the program keeps it for itself.
struct SetIn {
  const char* window = "";
  const char* control = "";
};

template <class Record>
struct IniKey {
  const char* name;
  std::variant<IniText<Record>, IniWhole<Record>, IniNumber<Record>, IniFlag<Record>,
               IniDate<Record>, IniRule<Record>>
      kind;
  SetIn setIn = {};
  bool fromInstall = false;  ///< an empty value is looked up in Tarnview_Install.ini
};

/// Where the keys of one record stand: "Graph 3 " is in front of their names, or " Car Def 2"
/// behind them.
struct IniPlace {
  std::string section;
  std::string prefix = {};
  std::string suffix = {};

  std::string KeyOf(std::string_view name) const { return prefix + std::string(name) + suffix; }
};

/// What becomes of a member whose key is missing: it keeps its value, or the key counts as an empty
/// text.
enum class IniMissing { Keeps, IsEmpty };

/// The shortest decimal that reads back as the same number, without an exponent.
std::string ShortestText(double value);
/// Item numbers with commas, each once; parts that are no number count as 0.
std::vector<int> ReadItemNumbers(std::string_view text);
std::string ItemNumbersText(const std::vector<int>& items);
std::string FlagText(bool value, IniFlagForm form);

namespace detail {

bool ReadFlag(std::string_view text, IniFlagForm form);
std::string LimitsText(Limits limits);

template <class Number>
void TakeNumber(Number& to, Number number, Number least, Number most, IniBeyond beyond) {
  if (beyond == IniBeyond::Clamped)
    to = std::clamp(number, least, most);
  else if (number >= least && number <= most)
    to = number;
}

template <class Record>
struct IniReader {
  Record& record;
  std::string_view text;

  // Not inlined: GCC 12 else takes the row's rule for one of a record that holds no text, and warns
  // of its bounds.
  [[gnu::noinline]] void operator()(const IniText<Record>& key) const { record.*key.value = text; }
  void operator()(const IniWhole<Record>& key) const {
    TakeNumber(record.*key.value, StringToLong(text), key.limits.least, key.limits.most,
               key.beyond);
  }
  void operator()(const IniNumber<Record>& key) const {
    TakeNumber(record.*key.value, StringToDouble(text), key.least, key.most, key.beyond);
  }
  void operator()(const IniFlag<Record>& key) const {
    record.*key.value = ReadFlag(text, key.form);
  }
  void operator()(const IniDate<Record>& key) const {
    record.*key.value = StringToDate(text, record.*key.value);
  }
  void operator()(const IniRule<Record>& key) const { key.read(record, text); }
};

template <class Record>
struct IniTextOf {
  const Record& record;

  std::string operator()(const IniText<Record>& key) const { return record.*key.value; }
  std::string operator()(const IniWhole<Record>& key) const {
    return std::to_string(record.*key.value);
  }
  std::string operator()(const IniNumber<Record>& key) const {
    return ShortestText(record.*key.value);
  }
  std::string operator()(const IniFlag<Record>& key) const {
    return FlagText(record.*key.value, key.form);
  }
  std::string operator()(const IniDate<Record>& key) const { return DateText(record.*key.value); }
  std::string operator()(const IniRule<Record>& key) const { return key.write(record); }
};

struct IniLimitsOf {
  template <class Record>
  std::string operator()(const IniText<Record>&) const {
    return "";
  }
  template <class Record>
  std::string operator()(const IniWhole<Record>& key) const {
    return LimitsText(key.limits);
  }
  template <class Record>
  std::string operator()(const IniNumber<Record>& key) const {
    return ShortestText(key.least) + " to " + ShortestText(key.most);
  }
  template <class Record>
  std::string operator()(const IniFlag<Record>& key) const {
    return FlagText(true, key.form) + " or " + FlagText(false, key.form);
  }
  template <class Record>
  std::string operator()(const IniDate<Record>&) const {
    return "yyyy-mm-dd";
  }
  template <class Record>
  std::string operator()(const IniRule<Record>& key) const {
    return key.limits;
  }
};

}  // namespace detail

/// What a key's value may be, in words: "10 to 1000", "Y or N"; "" for anything.
template <class Record>
std::string LimitsOf(const IniKey<Record>& key) {
  return std::visit(detail::IniLimitsOf{}, key.kind);
}

/// Takes a key's text, by its rule.
template <class Record>
void ReadIniText(const IniKey<Record>& key, std::string_view text, Record& record) {
  std::visit(detail::IniReader<Record>{record, text}, key.kind);
}
/// A key's text, as the file holds it.
template <class Record>
std::string IniTextOf(const IniKey<Record>& key, const Record& record) {
  return std::visit(detail::IniTextOf<Record>{record}, key.kind);
}

/// Reads the keys of a record. `install` is the table of Tarnview_Install.ini, where there is one.
template <class Record>
void ReadIniKeys(std::span<const IniKey<Record>> keys, const IniTable& table, const IniPlace& place,
                 Record& record, IniMissing missing = IniMissing::Keeps,
                 const IniTable* install = nullptr) {
  for (const auto& key : keys) {
    const std::string name = place.KeyOf(key.name);
    const std::string* value = table.Find(place.section, name);
    std::string installed;
    if (key.fromInstall && install && (!value || value->empty())) {
      installed = ReadProfileValue(*install, place.section, name);
      if (!installed.empty()) value = &installed;
    }
    if (value || missing == IniMissing::IsEmpty)
      ReadIniText(key, value ? std::string_view(*value) : std::string_view(), record);
  }
}

template <class Record>
void WriteIniKeys(std::span<const IniKey<Record>> keys, const IniPlace& place, const Record& record,
                  IniWriter& file) {
  for (const auto& key : keys) file.Line(place.KeyOf(key.name), IniTextOf(key, record));
}

/// The keys alone whose text is not that of a fresh record.
template <class Record>
void WriteChangedIniKeys(std::span<const IniKey<Record>> keys, const IniPlace& place,
                         const Record& record, IniWriter& file) {
  const Record fresh{};
  for (const auto& key : keys) {
    const std::string text = std::visit(detail::IniTextOf<Record>{record}, key.kind);
    if (text != std::visit(detail::IniTextOf<Record>{fresh}, key.kind))
      file.Line(place.KeyOf(key.name), text);
  }
}

}  // namespace tarnview
