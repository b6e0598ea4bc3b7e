#include "ui/Host.h"

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

}  // namespace tarnview
