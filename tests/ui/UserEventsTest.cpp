#include <gtest/gtest.h>

#include <new>

#include "ui/Action.h"
#include "ui/UserEvents.h"

namespace tarnview {
namespace {

class UserEventsTest : public ::testing::Test {
 protected:
  UserEventsTest() {
    events.Failed = [this](const std::string& module, const std::string& procedure,
                           const std::exception& error) {
      notes += " " + module + "/" + procedure + ":" + error.what();
    };
  }
  UserEvents::Event Note(const std::string& text) {
    return [this, text] { notes += " " + text + (events.Busy() ? "" : "(free)"); };
  }
  void Later(const std::string& text) { events.RunWhenFree("frmNotes", text, Note(text)); }

  UserEvents events;
  std::string notes;
};

TEST_F(UserEventsTest, AnErrorEndsHereAndIsTold) {
  EXPECT_FALSE(events.Run("frmNotes", "cmdOK_click", [] { throw std::runtime_error("broken"); }));
  EXPECT_FALSE(events.Run("frmNotes", "key", [] { throw std::bad_alloc(); }));
  EXPECT_EQ(notes, " frmNotes/cmdOK_click:broken frmNotes/key:std::bad_alloc");
  EXPECT_FALSE(events.Busy());
  events.Failed = nullptr;
  EXPECT_FALSE(events.Run("frmNotes", "key", [] { throw std::runtime_error("broken"); }));
  EXPECT_TRUE(events.Run("frmNotes", "key", Note("runs")));
}

TEST_F(UserEventsTest, WhatAScriptCannotDoGoesOnToIt) {
  EXPECT_THROW(events.Run("", "", [] { throw CannotDo("disabled"); }), CannotDo);
  EXPECT_EQ(notes, "");
  EXPECT_FALSE(events.Busy());
}

TEST_F(UserEventsTest, WhileOneIsAtWorkOthersWaitForItsEnd) {
  Later("drop");
  events.Run("", "draw", [&] {
    Note("draws")();
    Later("drop");
    Later("close");
    events.Run("", "focus", Note("focus"));
    Note("drawn")();
  });
  EXPECT_EQ(notes, " drop draws focus drawn drop close");
  notes.clear();
  events.Run("", "draw", [&] {
    Later("drop");
    throw std::runtime_error("broken");
  });
  EXPECT_EQ(notes, " /draw:broken drop");
}

TEST_F(UserEventsTest, ABoxLetsItsOwnEventsRun) {
  events.Run("", "load", [&] {
    Later("drop");
    {
      const UserEvents::Pause box(events);
      Note("box")();
      Later("close box");
      events.Run("", "", [&] { Later("after the button"); });
      events.Run("", "ok", [&] { Later("last"); });
    }
    Note("loaded")();
  });
  EXPECT_EQ(notes, " box(free) close box after the button last loaded drop");
}

}  // namespace
}  // namespace tarnview
