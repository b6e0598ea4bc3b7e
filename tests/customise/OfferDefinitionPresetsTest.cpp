#include <gtest/gtest.h>

#include "customise/OfferDefinitionPresets.h"
#include "ui/RecordingHost.h"

namespace tarnview {
namespace {

TEST(OfferDefinitionPresets, JoinsThemAsTheUserSays) {
  RecordingHost host;
  Messages messages{host, {}};
  clsDataLog definition;
  clsSampleGraphPreset own, other;
  own.lngLogFamily = kUniversalLogFamily;
  other.lngLogFamily = 1;
  definition.objPresetSampleGraphs.AddDirect(own);
  const struct {
    Answer::Kind answer;
    int samples, scatters;
  } kRows[] = {{Answer::Kind::Yes, 2, 1}, {Answer::Kind::No, 3, 1}, {Answer::Kind::Cancel, 2, 1}};
  for (const auto& row : kRows) {
    clsSampleGraphPresets samples;
    samples.AddDirect(own);
    samples.AddDirect(other);
    clsScatterGraphPresets scatters;  // a kind that the definition lacks stays
    scatters.AddDirect({}).lngLogFamily = kUniversalLogFamily;
    host.answers.push_back({row.answer, {}, 0, 0});
    OfferDefinitionPresets(definition, samples, scatters, messages);
    EXPECT_EQ(samples.Count(), row.samples);
    EXPECT_EQ(scatters.Count(), row.scatters);
  }
  EXPECT_EQ(host.messages[0].style, 291);
  host.messages.clear();
  clsSampleGraphPresets samples;
  clsScatterGraphPresets scatters;
  OfferDefinitionPresets({}, samples, scatters, messages);
  EXPECT_TRUE(host.messages.empty());
  definition.objPresetScatterGraphs.AddDirect({});
  OfferDefinitionPresets(definition, samples, scatters, messages);
  EXPECT_EQ(samples.Count() + scatters.Count(), 2)
      << "without an answer, those that are there stay";
}

}  // namespace
}  // namespace tarnview
