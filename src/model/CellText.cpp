#include "model/CellText.h"

#include <algorithm>
#include <cmath>
#include <cstring>

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
    Cell cell{&item, item.intSeq - 1};
    cell.factor = item.Factor();
    cell.places = item.intType == kScaledItem ? item.lngDisplayDecimalPlaces() : 0;
    cell.shown = PowerOfTen(std::min(cell.places, detail::kMostExactDigits));
    cell.plain = cell.factor == cell.shown;
    cell.gaps = log.glngDataLog.CountLogged(cell.column) < log.glngDataLog.Rows();
    cells_.push_back(cell);
    length += std::max(kLongest, LongestText(item)) + 1;
  }
  line_.resize(length + kLongest);
}

std::string_view CellTexts::Line(std::int32_t index) {
  char* to = line_.data();
  for (Cell& cell : cells_) {
    to = Write(cell, index, to);
    *to++ = ',';
  }
  return {line_.data(), static_cast<std::size_t>(to - line_.data()) - (cells_.empty() ? 0 : 1)};
}

char* CellTexts::Write(Cell& cell, std::int32_t index, char* to) {
  if (cell.gaps && !log_.glngDataLog.IsLogged(cell.column, index)) return to;
  const std::int32_t stored = log_.glngDataLog(cell.column, index);
  if (cell.item->intType == kListItem) {
    const auto place = static_cast<std::size_t>(stored);
    const auto& texts = cell.item->varDescList;
    if (stored >= 0 && place < texts.size())
      return std::copy(texts[place].begin(), texts[place].end(), to);
    return to;
  }
  if (!cell.known || stored != cell.stored) {
    cell.stored = stored;
    cell.known = true;
    Format(cell);
  }
  std::memcpy(to, cell.text.data(), kLongest);  // of a fixed length, which is a few steps
  return to + cell.length;
}

void CellTexts::Format(Cell& cell) const {
  const std::int64_t value = std::int64_t{cell.stored} - cell.item->lngStorageOffset;
  cell.length = 0;
  if ((value == 0 && !cell.item->blnDisplayZero) || cell.factor == 0) return;
  // The same steps as those of FixedText.
  const double scaled = cell.plain
                            ? static_cast<double>(value)
                            : RoundHalfEven(static_cast<double>(value) / cell.factor * cell.shown);
  if (std::fabs(scaled) < 1e18) {
    cell.length = PutNumber(static_cast<std::int64_t>(scaled), cell.places, cell.text.data());
    return;
  }
  const std::string text = cell.item->GetFormattedData(cell.stored);
  cell.length = std::min(text.size(), kLongest);
  std::copy_n(text.data(), cell.length, cell.text.data());
}

std::size_t CellTexts::PutNumber(std::int64_t whole, int places, char* text) {
  char buffer[kLongest];
  char* const end = buffer + kLongest;
  return static_cast<std::size_t>(std::copy(PutBefore(end, whole, places), end, text) - text);
}

}  // namespace tarnview
