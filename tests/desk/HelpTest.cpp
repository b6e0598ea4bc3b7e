#include "desk/Help.h"
#include "support/MemoryFileSystem.h"
#include "support/RecordingProcesses.h"
#include "support/Table.h"
#include "ui/RecordingHost.h"

namespace tarnview {
namespace {

/// The manual's folder, the topic, the user's folder and what else there is: what was opened, or
/// the box; and where the page that was written leads.
TEST(Help, OpensTheManualAtATopicFromAFolderThatCanBeWrittenTo) {
  ExpectTable(
      [](const TableRow& row) {
        const std::string& folder = row.Text(0);
        RecordingHost host;
        MemoryFileSystem files;
        RecordingProcesses processes;
        EXEFunctions programs{processes, host};
        Messages messages{host, [](int) { return ""; }};
        if (row.Text(3) != "no manual") files.files[folder + "Contents.htm"] = "";
        if (row.Text(3) == "protected") files.broken = {folder + "HelpLauncher.htm"};
        files.failWrites = row.Text(3) == "disk full";
        Help{files, programs, messages, folder, row.Text(2)}.ShowHelp(row.Text(1));
        std::string told = Join(processes.opened, " ");
        for (const Box& box : host.messages) told += "[" + std::to_string(box.id) + "]";
        for (const auto& [path, text] : files.files)
          for (const std::string& part : SplitAt(text, "src=\""))
            if (part.starts_with("file:")) told += " " + part.substr(0, part.find('"'));
        return told;
      },
      R"(
C:\car\Documentation\, GotoSample, C:\me\, manual -> C:\car\Documentation\HelpLauncher.htm file://C:/car/Documentation/Contents.htm file://C:/car/Documentation/Instructions.htm#GotoSample
C:\car\Documentation\, , C:\me\, manual -> C:\car\Documentation\HelpLauncher.htm file://C:/car/Documentation/Contents.htm file://C:/car/Documentation/Instructions.htm
/my #1 café%/, Keys, , manual -> /my #1 café%/HelpLauncher.htm file:///my%20%231%20caf%C3%A9%25/Contents.htm file:///my%20%231%20caf%C3%A9%25/Instructions.htm#Keys
C:\car\Documentation\, DataTags, C:\me\, protected -> C:\me\HelpLauncher.htm file://C:/car/Documentation/Contents.htm file://C:/car/Documentation/Instructions.htm#DataTags
# Without a folder of the user's it goes nowhere else.
C:\car\Documentation\, DataTags, , protected -> [30]
C:\car\Documentation\, DataTags, C:\me\, no manual -> [30]
C:\car\Documentation\, DataTags, C:\me\, disk full -> [30]
)");
}

}  // namespace
}  // namespace tarnview
