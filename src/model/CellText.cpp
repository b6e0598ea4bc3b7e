#include "model/CellText.h"

#include <algorithm>
#include <cmath>

#include "base/Numbers.h"

namespace tarnview {
namespace {

std::size_t LongestText(const clsLogDataItem& item) {
  std::size_t longest = 0;
  for (const std::string& text : item.varDescList) longest = std::max(longest, text.size());
  return longest;
}

}  // namespace

CellTexts::CellTexts(const OpenLog& log, const std::vector<int>& columns) : log_(log) {
  std::size_t length = 0;
  for (const int seq : columns) {
    const clsLogDataItem& item = log.gcolDataItems->Item(seq);
    Cell cell;
    cell.item = &item;
    cell.column = item.intSeq - 1;
    cell.factor = item.Factor();
    cell.places = item.intType == kScaledItem ? item.lngDisplayDecimalPlaces() : 0;
    cell.shown = PowerOfTen(std::min(cell.places, detail::kMostExactDigits));
    cell.plain = cell.factor == cell.shown;
    cell.gaps = log.glngDataLog.CountLogged(cell.column) < log.glngDataLog.Rows();
    if (const auto rows = log.glngDataLog.Column(cell.column); !rows.empty())
      cell.rows = rows.data();
    cells_.push_back(cell);
    length += std::max(kLongest, LongestText(item)) + 1;
  }
  line_.resize(length + kLongest);
}

std::string_view CellTexts::Line(std::int32_t index) {
  char* to = line_.data();
  for (Cell& cell : cells_) to = Write(cell, index, to);
  return {line_.data(), static_cast<std::size_t>(to - line_.data()) - (cells_.empty() ? 0 : 1)};
}

/// With a comma behind it.
char* CellTexts::Write(Cell& cell, std::int32_t index, char* to) {
  const std::int32_t stored = cell.rows ? cell.rows[index] : 0;
  const bool none = cell.gaps && !log_.glngDataLog.IsLogged(cell.column, index);
  if (none || cell.item->intType == kListItem) {
    const auto place = static_cast<std::size_t>(stored);
    const auto& texts = cell.item->varDescList;
    if (!none && stored >= 0 && place < texts.size())
      to = std::copy(texts[place].begin(), texts[place].end(), to);
    *to = ',';
    return to + 1;
  }
  if (!cell.known || stored != cell.stored) {
    cell.stored = stored;
    cell.known = true;
    Format(cell);
  }
  if (cell.longText.empty()) return cell.text.Write(to);
  return std::copy(cell.longText.begin(), cell.longText.end(), to);
}

void CellTexts::Format(Cell& cell) {
  const std::int64_t value = std::int64_t{cell.stored} - cell.item->lngStorageOffset;
  cell.longText.clear();
  if ((value == 0 && !cell.item->blnDisplayZero) || cell.factor == 0) return PutText(cell, "");
  if (cell.plain) return PutNumber(cell, value);
  // The same steps as those of FixedText.
  const double scaled = RoundHalfEven(static_cast<double>(value) / cell.factor * cell.shown);
  if (std::fabs(scaled) < 1e18) return PutNumber(cell, static_cast<std::int64_t>(scaled));
  PutText(cell, cell.item->GetFormattedData(cell.stored));
}

void CellTexts::PutNumber(Cell& cell, std::int64_t whole) {
  if (cell.text.Set(whole, cell.places)) return;
  char buffer[2 * kLongest];
  char* const end = buffer + sizeof buffer;
  PutText(cell, {PutBefore(end, whole, cell.places), end});
}

void CellTexts::PutText(Cell& cell, std::string_view text) {
  cell.longText = text.substr(0, kLongest);
  cell.longText += ',';
}

}  // namespace tarnview
