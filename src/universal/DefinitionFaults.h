#pragma once

#include <string>
#include <vector>

#include "base/MessageTable.h"
#include "base/RuntimeError.h"
#include "universal/clsDataLog.h"

namespace tarnview {

/// What is wrong with a definition file or with a log that is read through a definition. Its number
/// is that of the message, negative; its description is the message's detail.
class DefinitionFault : public RuntimeError {
 public:
  DefinitionFault(Message message, const std::string& detail)
      : RuntimeError(-static_cast<int>(message), detail) {}
  Message Told() const { return static_cast<Message>(-number); }
};

/// The lines of a detail as one text.
std::string DetailText(const std::vector<std::string>& lines);

// The checks of each kind of block, run when it has been read. They throw the first fault that they
// find. `path` is the definition file's name as it was given.

void CheckHeader(const clsDataLog& definition, const std::string& path);
void CheckColumn(const clsDataLogColumn& column, const clsDataLog& definition,
                 const clsLogDataItems& catalogue);
void CheckTime(const clsDataLog& definition, const std::string& path);
void CheckSampleGraph(const clsSampleGraphPreset& preset, const clsDataLog& definition,
                      const clsLogDataItems& catalogue, const std::string& path);
/// `values`: the value list of the item's first column, where that column is one of values; else
/// null.
void CheckFilter(const clsScatterFilter& filter, const clsScatterGraphPreset& preset,
                 const clsDataLog& definition, const clsDataLogColumnValues* values,
                 const clsLogDataItems& catalogue, const std::string& path);
void CheckScatterGraph(const clsScatterGraphPreset& preset, const clsDataLog& definition,
                       const clsLogDataItems& catalogue, const std::string& path);

}  // namespace tarnview
