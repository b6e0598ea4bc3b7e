#include "customise/OfferDefinitionPresets.h"
#include "support/DeskTest.h"
#include "support/Table.h"

namespace tarnview {
namespace {

using OfferDefinitionPresetsTest = DeskTest;

/// What the user answers, and how many sample and scatter presets there are then.
TEST_F(OfferDefinitionPresetsTest, JoinsThemAsTheUserSays) {
  clsSampleGraphPreset own, other;
  own.lngLogFamily = kUniversalLogFamily;
  other.lngLogFamily = 1;
  const std::map<std::string, Answer> answers = {
      {"yes", {Answer::Kind::Yes}}, {"no", {Answer::Kind::No}}, {"cancel", {Answer::Kind::Cancel}}};
  ExpectTable(
      [&](const TableRow& row) {
        clsDataLog definition;
        if (row.Yes(1)) definition.objPresetSampleGraphs.AddDirect(own);
        if (row.Yes(2)) definition.objPresetScatterGraphs.AddDirect({});
        clsSampleGraphPresets samples;
        samples.AddDirect(own);
        samples.AddDirect(other);
        clsScatterGraphPresets scatters;
        scatters.AddDirect({}).lngLogFamily = kUniversalLogFamily;
        host.messages.clear();
        host.answers.clear();
        if (answers.contains(row.Text(0))) host.answers.push_back(answers.at(row.Text(0)));
        OfferDefinitionPresets(definition, samples, scatters, messages);
        return std::to_string(samples.Count()) + " " + std::to_string(scatters.Count()) +
               (host.messages.empty() ? "" : ", style " + std::to_string(host.messages[0].style));
      },
      R"(
# The answer; whether the definition has samples, and scatters. A kind that it lacks stays.
yes, yes, no -> 2 1, style 291
no, yes, no -> 3 1, style 291
cancel, yes, no -> 2 1, style 291
yes, no, no -> 2 1
# Without an answer, those that are there stay.
nothing, no, yes -> 2 2, style 291
yes, no, yes -> 2 1, style 291
yes, yes, yes -> 2 1, style 291
)");
}

}  // namespace
}  // namespace tarnview
