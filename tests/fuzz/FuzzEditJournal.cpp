#include <cstdlib>

#include "zones/EditJournal.h"

/// Any bytes are a journal or none; what is written of one comes back.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  using namespace tarnview;
  const auto journal = ReadJournal({reinterpret_cast<const char*>(data), size});
  if (!journal) return 0;
  const auto again = ReadJournal(JournalText(*journal));
  if (!again || again->history.Now() != journal->history.Now()) std::abort();
  return 0;
}
