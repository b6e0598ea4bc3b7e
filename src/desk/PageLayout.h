#pragma once

#include <string>
#include <utility>
#include <vector>

#include "ui/Page.h"

namespace tarnview {

struct PlacedText {
  std::string text;
  int points = 0;
  double left = 0, top = 0;
};

/// What stands where on a printed page, in twips.
struct PageLayout {
  std::vector<PlacedText> texts;
  PageRect picture;  ///< without width where there is no room for it
};

/// Labels and values; a row with an empty label goes on with the value of the last.
using DetailRows = std::vector<std::pair<std::string, std::string>>;

/// The left edge of the details: the widest label, the separator and the widest value stand in the
/// middle of the page less its margins.
double DetailsLeft(double pageWidth, double label, double separator, double value);
/// Where a picture of `width` by `height`, in any unit, stands below `top`: it fills the page's
/// width or height less the margins and keeps its shape.
PageRect PicturePlace(double pageWidth, double pageHeight, double top, double width, double height);

/// A title in the middle, details under it in two columns, and below them a picture of that shape
/// (height over width). The page only measures.
PageLayout LayOutPage(const Page& page, const std::string& title, const DetailRows& rows,
                      double shape);

}  // namespace tarnview
