#include "support/Table.h"
#include "ui/CommandButton.h"
#include "ui/ControlArray.h"
#include "ui/Form.h"
#include "ui/Grid.h"
#include "ui/MenuItem.h"
#include "ui/Script.h"
#include "ui/ScriptUser.h"
#include "ui/TextBox.h"

namespace tarnview {
namespace {

/// A window that notes, with its letter, what is done to it.
class Noting : public Form {
 public:
  Noting(Host& itsHost, const char* name, char letter, std::string& notes)
      : Form(itsHost, name, ""), letter_(letter), notes_(notes) {
    txtName.Change = [this] { Note(txtName.Text()); };
    cmdOK.Click = [this] { Note("ok"); };
    grdData.RightClick = [this] { Note("menu"); };
    mnuItem(2).Click = [this] { Note("item 2"); };
    DefaultButton = &cmdOK;
    Show();
  }

 private:
  void Note(const std::string& what) { notes_ += std::string(" ") + letter_ + ":" + what; }
  void Form_Unload() override { Note("closed"); }

  const char letter_;
  std::string& notes_;
  TextBox txtName{*this, "txtName"};
  CommandButton cmdOK{*this, "cmdOK", "OK"};
  Grid grdData{*this, "grdData"};
  ControlArray<MenuItem> mnuItem{*this, "mnuItem", {0, 2}, std::string("0"), std::string("2")};
};

TEST(ScriptUser, WorksTheWindowInFrontOrTheOneThatIsNamed) {
  RecordingHost host;
  std::string notes;
  Noting one(host, "frmOne", 'a', notes), two(host, "frmTwo", 'b', notes),
      another(host, "frmOne", 'c', notes);
  ScriptUser user(host);
  const auto tell = [&](const TableRow& row) {
    const auto words = ParseScript(row.All()).at(0).words;
    try {
      if (!user.Do(words)) user.Work(words);
    } catch (const CannotDo& error) {
      notes += std::string(" cannot: ") + error.what();
    }
    for (const Answer& answer : std::exchange(host.answers, {}))
      notes += " reply " + std::to_string(static_cast<int>(answer.kind)) + " " + answer.path + " " +
               std::to_string(answer.colour);
    return std::exchange(notes, "");
  };
  ExpectTable(tell, R"(
type txtName x ->  c:x | type frmTwo/txtName x ->  b:x | type frmOne/txtName x ->  a:x | type frmOne.2/txtName y ->  c:y
type frmOne.3/txtName y ->  cannot: no window "frmOne.3" is open
type txtOther x ->  cannot: frmOne has no control "txtOther"
click mnuItem(2) ->  c:item 2
popup grdData mnuItem(2) ->  c:menu c:item 2
popup grdData ->  c:menu cannot: words are missing
popup txtName mnuItem(2) ->  cannot: txtName is a text box and cannot do "popup"
key Enter ->  c:ok
key Nonsense ->  cannot: no key is called "Nonsense"
key ->  cannot: words are missing
answer yes ->  reply 0  0 | answer no ->  reply 1  0 | answer ok ->  reply 2  0 | answer cancel ->  reply 3  0 | answer stop ->  reply 8  0 | answer printer ->  reply 7  0
answer file a.txt ->  reply 4 a.txt 0 | answer folder b ->  reply 5 b 0 | answer colour 255 ->  reply 6  255
answer file ->  cannot: words are missing
answer perhaps ->  cannot: no reply is called "perhaps"
close frmTwo ->  b:closed
close frmTwo ->  cannot: no window "frmTwo" is open
close ->  c:closed
close ->  a:closed
close ->  cannot: no window is open
type txtName z ->  cannot: no window is open
)");
}

}  // namespace
}  // namespace tarnview
