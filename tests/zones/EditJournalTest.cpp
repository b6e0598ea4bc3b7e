#include <gtest/gtest.h>

#include "zones/EditJournal.h"
#include "zones/ZoneEdits.h"
#include "zones/ZoneTexts.h"

namespace tarnview {
namespace {

EditJournal Sample() {
  ZoneMap source = MapWith(Chip("1.8 2005-02-10 3"), 2, 100);
  source.zones[255] = -1;
  source.strNotes = "a\\n\r\nb\t";
  return {"/car/a.map", 2, source};
}

void DoSome(EditHistory& history) {
  history.Do("One\ttab", WithField(history.Now(), 6, "7"));
  history.Do("Chip", WithChipDate(WithEngineSize(history.Now(), 1.6), MakeDate(2003, 1, 1)));
  history.Do("Type", WithAutoTuneType(WithTick(history.Now(), Tick::TargetControl, true), "L3+L4"));
  history.Do("Unit", WithBoostTargets(history.Now(), false));
}

TEST(EditJournal, StepsComeBackWithWhatTheyStartedFrom) {
  EditJournal journal = Sample();
  DoSome(journal.history);
  const auto again = ReadJournal(JournalText(journal));
  ASSERT_TRUE(again);
  EXPECT_EQ(again->file, "/car/a.map");
  EXPECT_EQ(again->fileType, 2);
  EXPECT_EQ(again->source, journal.source);
  ASSERT_EQ(again->history.Steps().size(), 4u);
  for (std::size_t step = 0; step < 4; ++step) {
    EXPECT_EQ(again->history.Steps()[step].name, journal.history.Steps()[step].name);
    EXPECT_EQ(again->history.Steps()[step].after, journal.history.Steps()[step].after) << step;
  }
  journal.history.Undo();
  EXPECT_EQ(ReadJournal(JournalText(journal))->history.Now(), journal.history.Now());
}

TEST(EditJournal, OfManyStepsTheLast) {
  EditJournal journal = Sample();
  for (int i = 0; i < 250; ++i)
    journal.history.Do(std::to_string(i), WithField(journal.history.Now(), 7, std::to_string(i)));
  const std::string text = JournalText(journal);
  EXPECT_LT(text.size(), 6000u);
  const auto again = ReadJournal(text);
  EXPECT_EQ(again->history.Steps().size(), 200u);
  EXPECT_EQ(again->history.Now(), journal.history.Now());
}

TEST(EditJournal, WhatIsNoneOrNotWhole) {
  EditJournal journal = Sample();
  DoSome(journal.history);
  const std::string text = JournalText(journal);
  for (std::size_t length = 0; length + 4 < text.size(); length += 7)
    EXPECT_FALSE(ReadJournal(text.substr(0, length)));
  const std::pair<const char*, const char*> changes[] = {
      {"Tarnview", "x"}, {"1.8 ", ""},   {" 3 101", " 4 101"}, {"100 100", "100"},
      {"6=7", "999=7"},  {"6=7", "6=x"}, {"6=7", "6"},         {"=L3+L4", "=L5"}};
  for (const auto& [from, to] : changes) {
    std::string changed = text;
    changed.replace(changed.find(from), std::string(from).size(), to);
    EXPECT_FALSE(ReadJournal(changed)) << from;
  }
}

}  // namespace
}  // namespace tarnview
