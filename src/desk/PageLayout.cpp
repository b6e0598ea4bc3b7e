#include "desk/PageLayout.h"

#include <algorithm>

#include "base/Text.h"

namespace tarnview {
namespace {

/// Half an inch at each side.
constexpr double kMargin = 720, kMargins = 2 * kMargin;
constexpr int kTitlePoints = 24;
/// The first size at which the details leave the picture its half of the page.
constexpr int kDetailPoints[] = {10, 8, 6};
constexpr int kSpacePoints = 6;  ///< the empty line between details and picture
constexpr const char* kSeparator = " : ";
constexpr const char* kMore = "...";
/// A value never gets less than this, however long the labels are.
constexpr double kLeastValueWidth = 1440;

/// How much of a text fits, ending behind a blank or a separator of folders where there is one; at
/// least a letter.
std::size_t FittingLength(const Page& page, const std::string& text, int points, double room) {
  std::size_t fits = 0;
  for (std::size_t most = text.size() + 1; most - fits > 1;) {
    const std::size_t middle = (fits + most) / 2;
    if (page.TextWidth(text.substr(0, middle), points) <= room)
      fits = middle;
    else
      most = middle;
  }
  if (fits == text.size()) return fits;
  if (fits == 0) return 1;
  const std::size_t stop = text.find_last_of(" /\\", fits - 1);
  if (stop == std::string::npos) return fits;
  return stop + 1;
}

/// The details at one size: a label, or none, and a value that fits, for each line.
struct Details {
  int points = 0;
  DetailRows lines;
  double label = 0, separator = 0, value = 0;  ///< widths
};

Details BreakIntoLines(const Page& page, const DetailRows& rows, int points) {
  Details details;
  details.points = points;
  details.separator = page.TextWidth(kSeparator, points);
  for (const auto& row : rows)
    details.label = std::max(details.label, page.TextWidth(row.first, points));
  const double room =
      std::max(page.Width() - kMargins - details.label - details.separator, kLeastValueWidth);
  for (const auto& [label, value] : rows) {
    std::string rest = value;
    for (bool first = true; first || !rest.empty(); first = false) {
      const std::string line = rest.substr(0, FittingLength(page, rest, points, room));
      rest.erase(0, line.size());
      details.lines.emplace_back(TextIf(first, label), line);
      details.value = std::max(details.value, page.TextWidth(line, points));
    }
  }
  return details;
}

/// The details in the upper half of what is left of the page; what does not fit in the smallest
/// type is left out.
Details FitDetails(const Page& page, const DetailRows& rows, double top) {
  Details details;
  std::size_t most = 0;
  for (const int points : kDetailPoints) {
    details = BreakIntoLines(page, rows, points);
    most = static_cast<std::size_t>(
        std::max((page.Height() - top) / 2 / page.LineHeight(points), 1.0));
    if (details.lines.size() <= most) return details;
  }
  details.lines.resize(most);
  details.lines.back() = {"", kMore};
  return details;
}

/// Adds the details at `top`, and returns where they end.
double AddDetails(const Page& page, const Details& details, double top,
                  std::vector<PlacedText>& texts) {
  const double left = DetailsLeft(page.Width(), details.label, details.separator, details.value);
  for (const auto& [label, value] : details.lines) {
    if (!label.empty()) {
      const double width = page.TextWidth(label, details.points);
      texts.push_back({label + kSeparator, details.points, left + details.label - width, top});
    }
    texts.push_back({value, details.points, left + details.label + details.separator, top});
    top += page.LineHeight(details.points);
  }
  return top;
}

}  // namespace

double DetailsLeft(double pageWidth, double label, double separator, double value) {
  return kMargin + std::max(pageWidth - kMargins - (label + separator + value), 0.0) / 2;
}

PageRect PicturePlace(double pageWidth, double pageHeight, double top, double width,
                      double height) {
  const double roomAcross = pageWidth - kMargins, roomDown = pageHeight - top - kMargins / 2;
  if (roomAcross <= 0 || roomDown <= 0 || width <= 0 || height <= 0) return {};
  const double scale = 1 / std::max(width / roomAcross, height / roomDown);
  return {(pageWidth - width * scale) / 2, top, width * scale, height * scale};
}

PageLayout LayOutPage(const Page& page, const std::string& title, const DetailRows& rows,
                      double shape) {
  PageLayout layout;
  double top = kMargin;
  layout.texts.push_back(
      {title, kTitlePoints, (page.Width() - page.TextWidth(title, kTitlePoints)) / 2, top});
  top += page.LineHeight(kTitlePoints) + page.LineHeight(kSpacePoints);
  top = AddDetails(page, FitDetails(page, rows, top), top, layout.texts) +
        page.LineHeight(kSpacePoints);
  layout.picture = PicturePlace(page.Width(), page.Height(), top, 1, shape);
  return layout;
}

}  // namespace tarnview
