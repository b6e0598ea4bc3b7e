#include "ecu/EcuTest.h"
#include "ecu/frmConvertBIN.h"

namespace tarnview {
namespace {

class ConvertBIN : public EcuTest {
 protected:
  ConvertBIN() {
    files.files["/logs/run.bin"] = "binary";
    files.files["/logs/RUN.DAT"] = "other";
    ProgramDoes("C.exe", [this] {
      files.files["/mdos/miatatmp.txt"] = "text of " + files.files["/mdos/miatatmp.bin"];
    });
  }
  const std::string good = "type txtPath(0) /logs/run.bin\ntype txtPath(1) /logs/run\n";
};

TEST_F(ConvertBIN, StartsInTheFolderOfTheLastOrTheOpenFile) {
  const auto starts = [&](const std::string& last, const std::string& current) {
    settings.gstrLastConvertedBinary = last;
    frmConvertBIN window(world, current);
    EXPECT_EQ(window.txtPath(0).Text(), window.txtPath(1).Text());
    EXPECT_TRUE(window.chkAutoLoad.Value());
    return window.txtPath(0).Text();
  };
  EXPECT_EQ(starts("", "C:\\Logs\\a.txt"), "C:\\Logs\\");
  EXPECT_EQ(starts("/old/b.bin", "C:\\Logs\\a.txt"), "/old/");
  EXPECT_EQ(starts("", ""), "");
}

TEST_F(ConvertBIN, RefusesAPathThatIsNoneAndKeepsItsText) {
  struct Row {
    const char* action;
    const char* path;
    const char* told;
  };
  const Row rows[] = {
      {"type txtPath(0) /nowhere/*.bin", "/nowhere/*.bin", "box 36 [48]\n"},
      {"type txtPath(0) run.bin", "run.bin", "box 36 [48]\n"},
      {"type txtPath(0) /logs/ru?.xxx", "/logs/ru?.xxx", "box 37 [48]\n"},
      {"type txtPath(0) /logs/old.txt", "/logs/old.txt", "box 35 [48]\n"},
      {"type txtPath(0) /logs/none.bin", "/logs/none.bin", "box 35 [48]\n"},
      {"type txtPath(0) /logs/", "/logs/", "box 35 [48]\n"},
      {"type txtPath(0) /logs/run.bin", "/logs/run.bin", ""},
      {"type txtPath(0) /logs/RUN.DAT", "/logs/RUN.DAT", ""},
      {"type txtPath(1) /nowhere/a", "/nowhere/a", "box 36 [48]\n"},
      {"type txtPath(1) /logs/a|b", "/logs/a|b", "box 37 [48]\n"},
      {"type txtPath(1) /logs/", "/logs/", "box 37 [48]\n"},
      {"type txtPath(1) /logs/a", "/logs/a.txt", ""},
      {"type txtPath(1) /logs/a.b.c", "/logs/a.b.txt", ""},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.action);
    frmConvertBIN window(world, "");
    window.Show();
    Act(window, row.action);
    TextBox& box = window.txtPath(row.action[13] - '0');
    EXPECT_EQ(box.Text(), row.path);
    EXPECT_EQ(Told(), row.told);
    EXPECT_EQ(window.ActiveControl(), *row.told ? &box : nullptr);
  }
}

TEST_F(ConvertBIN, StopsNobodyOnTheWayToItsOwnBrowseOrToCancel) {
  frmConvertBIN window(world, "");
  window.Show();
  const std::pair<Control*, const char*> kWays[] = {{&window.cmdCancel, ""},
                                                    {&window.cmdBrowse(0), ""},
                                                    {&window.cmdBrowse(1), "box 36 [48]\n"},
                                                    {&window.chkAutoLoad, "box 36 [48]\n"}};
  for (const auto& [to, told] : kWays) {
    window.SetFocus(&window.txtPath(0));
    window.txtPath(0).Text = std::string("/nowhere/a.bin");
    window.SetFocus(to);
    EXPECT_EQ(Told(), told) << to->FullName();
  }
}

TEST_F(ConvertBIN, ConvertsAndRemembersTheSource) {
  frmConvertBIN window(world, "");
  files.files["/mdos/miata.map"] = "left over";
  window.Show();
  Act(window, good + "click cmdOK");
  EXPECT_EQ(Told(), "run /mdos/C.exe in /mdos/\n");
  EXPECT_FALSE(window.IsShown());
  EXPECT_EQ(window.TargetPath(), "/logs/run.txt");
  EXPECT_EQ(files.files["/logs/run.txt"], "text of binary");
  EXPECT_FALSE(files.files.contains("/mdos/miata.map"));
  EXPECT_EQ(settings.gstrLastConvertedBinary, "/logs/run.bin");
}

TEST_F(ConvertBIN, NeverGoesOverTheOpenLog) {
  files.files["/logs/run.txt"] = "open";
  host.WhyNotSave = [](const Dialog& chosen) {
    return chosen.path == "/logs/run.txt" ? "Open:" : "";
  };
  frmConvertBIN window(world, "");
  window.Show();
  Act(window, good + "click cmdOK");
  const std::string refused =
      "box Open:\r\n/logs/run.txt\r\n\r\nPlease choose another name. [48]\n";
  EXPECT_EQ(Told(), refused);
  EXPECT_EQ(files.files["/logs/run.txt"], "open");
  host.answers = {{Answer::Kind::File, "/logs/run.txt"}, {}, {Answer::Kind::File, "/logs/b.txt"}};
  Act(window, "click cmdBrowse(1)");
  EXPECT_EQ(Told(), refused);
  EXPECT_EQ(window.txtPath(1).Text(), "/logs/b.txt");
}

TEST_F(ConvertBIN, KeepsWhatItCannotReplace) {
  files.files["/logs/run.txt"] = "before";
  files.files["/mdos/miatatmp.txt"] = "left over";
  host.answers = {{Answer::Kind::No}, {Answer::Kind::Yes}, {Answer::Kind::Ok}, {Answer::Kind::Yes}};
  frmConvertBIN window(world, "");
  window.Show();
  Act(window, good + "click cmdOK");
  EXPECT_EQ(Told(), "box File already exists.  Overwrite? [36]\n");
  processes.trouble = "Exec format error";
  Act(window, "click cmdOK");
  EXPECT_EQ(Told(),
            "box File already exists.  Overwrite? [36]\n"
            "box C.exe could not be started:\r\nExec format error [48]\n"
            "run /mdos/C.exe in /mdos/\n");
  EXPECT_TRUE(window.IsShown());
  EXPECT_EQ(window.txtPath(0).Text(), "/logs/run.bin");
  EXPECT_EQ(files.files["/logs/run.txt"], "before");
  EXPECT_EQ(files.files["/mdos/miatatmp.txt"], "left over");

  processes.trouble.clear();
  ProgramDoes("C.exe", [] {});
  Act(window, "click cmdOK");
  EXPECT_EQ(Told(),
            "box File already exists.  Overwrite? [36]\nbox 25 [48]\nrun /mdos/C.exe in /mdos/\n");
  EXPECT_FALSE(window.IsShown());
  EXPECT_EQ(window.TargetPath(), "");
  EXPECT_FALSE(files.files.contains("/logs/run.txt"));
  EXPECT_EQ(settings.gstrLastConvertedBinary, "");
}

TEST_F(ConvertBIN, ConvertsWhatLiesAmongTheLeftovers) {
  files.files["/mdos/miata.dat"] = "captured";
  frmConvertBIN window(world, "");
  window.Show();
  Act(window, "type txtPath(0) /mdos/miata.dat\ntype txtPath(1) /logs/run\nclick cmdOK");
  EXPECT_EQ(files.files["/logs/run.txt"], "text of captured");
  EXPECT_EQ(files.files["/mdos/miata.dat"], "captured");
  EXPECT_EQ(Told(), "run /mdos/C.exe in /mdos/\n");
  settings.gstrConversionEXE = "/mdos/none.exe";
  frmConvertBIN again(world, "");
  again.Show();
  Act(again, good + "click cmdOK");
  EXPECT_EQ(Told(), "box 11 [64]\n");
}

TEST_F(ConvertBIN, BrowsesForBoth) {
  frmConvertBIN window(world, "/logs/a.txt");
  window.Show();
  host.answers = {{Answer::Kind::File, "/logs/run.bin"},
                  {Answer::Kind::Cancel},
                  {Answer::Kind::File, "/logs/b"}};
  Act(window, "click cmdBrowse(0)\nclick cmdBrowse(1)\nclick cmdBrowse(1)");
  EXPECT_EQ(window.txtPath(0).Text(), "/logs/run.bin");
  EXPECT_EQ(window.txtPath(1).Text(), "/logs/b");
}

}  // namespace
}  // namespace tarnview
