#include "desk/Commands.h"
#include "support/DeskTest.h"
#include "support/Table.h"

namespace tarnview {
namespace {

using CommandsTest = DeskTest;

TEST_F(CommandsTest, RunWhereTheyAreThereAndMay) {
  Form form{host, "frmAny", ""};
  CommandButton always{form, "cmdAlways", ""}, none{form, "cmdNone", ""};
  MenuItem asked{form, "mnuAsked", ""}, unbound{form, "mnuUnbound", ""};
  std::string ran;
  bool may = true;
  Commands commands(errors, "frmAny");
  none.Click = [&] { ran += "own "; };
  commands.Bind({{&always, [&] { ran += "always "; }, {}},
                 {&none, {}, {}},
                 {&asked, [&] { throw std::runtime_error("broken"); }, [&] { return may; }}});
  EXPECT_FALSE(none.Enabled()) << "once they are bound";
  const auto told = [&](const TableRow& row) {
    may = row.Yes(0);
    commands.Update();
    always.Press();
    none.Click();
    if (asked.Enabled) asked.Click();
    std::string on;
    for (const Control* control : form.Controls()) on += control->Enabled() ? '1' : '0';
    return on + " " + std::exchange(ran, "");
  };
  ExpectTable(told, R"(
yes -> 1011 always own  | no -> 1001 always own  | yes -> 1011 always own 
)");
  EXPECT_NE(files.files["/car/error.log"].find("mnuAsked_Click"), std::string::npos);
}

}  // namespace
}  // namespace tarnview
