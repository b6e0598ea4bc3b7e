#include "ui/RecordingHost.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "base/Text.h"
#include "ui/Form.h"
#include "ui/MenuItem.h"

namespace tarnview {
namespace {

std::optional<Answer> Next(std::deque<Answer>& answers) {
  if (answers.empty()) return std::nullopt;
  Answer answer = answers.front();
  answers.pop_front();
  return answer;
}

Reply ReplyFor(const Box& box, Answer::Kind kind) {
  switch (kind) {
    case Answer::Kind::Yes:
      return Reply::Yes;
    case Answer::Kind::No:
      return Reply::No;
    case Answer::Kind::Ok:
      return Reply::Ok;
    case Answer::Kind::Cancel:
      return Reply::Cancel;
    default:
      return box.DefaultReply();
  }
}

const char* Name(Reply reply) {
  switch (reply) {
    case Reply::Ok:
      return "ok";
    case Reply::Cancel:
      return "cancel";
    case Reply::Yes:
      return "yes";
    case Reply::No:
      return "no";
  }
  return "";
}

const char* Name(DialogKind kind) {
  switch (kind) {
    case DialogKind::Open:
      return "open";
    case DialogKind::Save:
      return "save";
    case DialogKind::Folder:
      return "folder";
    case DialogKind::Colour:
      return "colour";
    case DialogKind::Printer:
      return "printer";
  }
  return "";
}

}  // namespace

Reply RecordingHost::Ask(const Box& box) {
  const auto answer = Next(answers);
  Reply reply = box.DefaultReply();
  if (answer) reply = ReplyFor(box, answer->kind);
  messages.push_back(box);
  boxes.emplace_back(Object{{"id", box.id},
                            {"text", box.TextWithin(kMostDetailsTold)},
                            {"style", box.style},
                            {"reply", Name(reply)}});
  if (takesOffers && box.takeOffer) box.takeOffer();
  return reply;
}

bool RecordingHost::Choose(Dialog& dialog) {
  auto given = std::exchange(nextFile, std::nullopt);
  if (!given) given = Next(answers);
  const Answer answer = given.value_or(Answer{Answer::Kind::Cancel, {}, 0, 0});
  const bool chosen = answer.kind != Answer::Kind::Cancel && answer.kind != Answer::Kind::No;
  std::string reply = "cancel";
  if (chosen) {
    if (!answer.path.empty()) dialog.path = answer.path;
    if (answer.kind == Answer::Kind::Colour) dialog.colour = answer.colour;
    if (answer.filterIndex > 0) dialog.filterIndex = answer.filterIndex;
    reply = OrElse(answer.path, "ok");
  }
  boxes.emplace_back(Object{{"dialog", Name(dialog.kind)},
                            {"title", dialog.title},
                            {"filter", dialog.filter},
                            {"reply", reply}});
  return chosen;
}

std::unique_ptr<Waiting> RecordingHost::Wait(const std::string& program) {
  struct Scripted : Waiting {
    explicit Scripted(bool stops) : stops_(stops) {}
    bool GoOn() override { return !stops_; }
    bool stops_;
  };
  waits.push_back(program);
  const bool stops = !answers.empty() && answers.front().kind == Answer::Kind::Stop;
  if (stops) answers.pop_front();
  return std::make_unique<Scripted>(stops);
}

void RecordingHost::Show(Form& form, bool modal) {
  std::erase(open, &form);
  open.push_back(&form);
  form.Form_Activate();
  if (!modal) return;
  const UserEvents::Pause pause(events);
  RunModal(form);
}

void RecordingHost::Hide(Form& form) { std::erase(open, &form); }

void RecordingHost::RunModal(Form& form) {
  if (work) work(form);
  if (form.IsShown()) form.Unload();
}

void RecordingHost::PopupMenu(MenuItem& menu) { popup = menu.FullName(); }

bool RecordingHost::SavePicture(const Chart&, const std::string& path, std::string& error) {
  error = refusal;
  if (error.empty()) pictures.push_back(path);
  return error.empty();
}

bool RecordingHost::PrintPage(const PrintJob& job, std::string& error) {
  error.clear();
  Dialog dialog;
  dialog.kind = DialogKind::Printer;
  return Choose(dialog) && PreviewPage(job, error);
}

bool RecordingHost::PreviewPage(const PrintJob& job, std::string& error) {
  error = refusal;
  if (error.empty()) job.fill(pages.emplace_back());
  return error.empty();
}

}  // namespace tarnview
