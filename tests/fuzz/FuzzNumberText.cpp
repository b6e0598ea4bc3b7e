// Text to number and back: the quick road and the plain one agree, and no text is too odd for
// either.

#include <cmath>
#include <cstdlib>
#include <cstring>

#include "base/Dates.h"
#include "base/Numbers.h"
#include "base/Text.h"

namespace {

bool Same(double a, double b) { return a == b || (std::isnan(a) && std::isnan(b)); }

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  using namespace tarnview;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  if (!Same(StringToDouble(text), detail::StringToDoubleSlowly(text))) std::abort();
  if (!Same(ValDouble(text), detail::ValDoubleSlowly(text))) std::abort();
  StringToLong(text);
  StringToDate(text, Date{});
  if (Upper(text).empty() != text.empty() || CaseKey(text).empty() != text.empty()) std::abort();
  FromUtf8(ToUtf8(text));
  double value = 0;
  if (size >= sizeof value) std::memcpy(&value, data, sizeof value);
  const std::string written = NumberText(value);
  if (NumberText(StringToDouble(written)) != written) std::abort();
  for (int places = -1; places < 20; ++places) FixedText(value, places);
  return 0;
}
