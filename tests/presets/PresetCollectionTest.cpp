#include <gtest/gtest.h>

#include "presets/clsSampleGraphPreset.h"
#include "presets/clsScatterGraphPreset.h"

namespace tarnview {
namespace {

clsSampleGraphPreset Named(const char* name, int family) {
  clsSampleGraphPreset preset;
  preset.strName = name;
  preset.lngLogFamily = family;
  return preset;
}

std::string Names(const clsSampleGraphPresets& presets) {
  std::string names;
  for (const auto& preset : presets) names += preset.strName + " ";
  return names;
}

TEST(PresetCollection, AddsCopiesAndDropsAFamily) {
  clsSampleGraphPresets presets;
  presets.AddDirect(Named("a", 1));
  presets.AddDirect(Named("b", 7));
  presets.AddCollection(presets);
  EXPECT_EQ(Names(presets), "a b a b ");
  presets.Item(3).strName = "c";
  EXPECT_EQ(Names(presets), "a b c b ");
  presets.RemoveFamily(kUniversalLogFamily);
  EXPECT_EQ(Names(presets), "a c ");
  EXPECT_EQ(clsSampleGraphPresets::BlankPreset().strName, "New Preset");
}

TEST(PresetCollection, AFamilyIsNoneUntilItIsWrittenAndThenAFamily) {
  clsSampleGraphPreset preset;
  EXPECT_EQ(preset.lngLogFamily, 0);
  EXPECT_EQ(Named("", 0).lngLogFamily, 1);
  EXPECT_EQ(Named("", 99).lngLogFamily, 7);
}

TEST(PresetCollection, ADuplicateHasFiltersOfItsOwn) {
  clsScatterGraphPreset preset;
  preset.objFilters.AddDirect({});
  clsScatterGraphPreset copy = preset.Duplicate();
  copy.objFilters.Item(1).dblFrom = 5;
  copy.objFilters.AddDirect({});
  EXPECT_EQ(preset.objFilters.Count(), 1);
  EXPECT_EQ(preset.objFilters.Item(1).dblFrom, kBoundNotSet);
}

}  // namespace
}  // namespace tarnview
