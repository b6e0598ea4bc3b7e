#include "ui/Host.h"

#include "base/Text.h"

namespace tarnview {

Reply Box::DefaultReply() const {
  const bool second = (style & kBoxSecondIsDefault) != 0;
  switch (style & 7) {
    case kBoxYesNo:
    case kBoxYesNoCancel:
      return second ? Reply::No : Reply::Yes;
    default:
      return Reply::Ok;
  }
}

std::string Box::TextWithin(std::size_t mostDetails) const {
  if (detailsFrom >= text.size()) return text;
  return text.substr(0, detailsFrom) +
         Shortened(std::string_view(text).substr(detailsFrom), mostDetails);
}

}  // namespace tarnview
