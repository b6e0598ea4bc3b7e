#include "universal/GenericDescriptions.h"

namespace tarnview {

void SetGenericDataLogDescriptions(FileKinds& kinds, const clsDataLog& definition) {
  clsLogFamily& family = kinds.gcolLogFamilies.Item(kUniversalLogFamily);
  family.UpdateDescription(definition.strName);
  if (family.colFileTypes.empty()) return;
  kinds.gcolFileTypes.Item(family.colFileTypes.front())
      .UpdateDescription(definition.strName, definition.strFileExtension);
}

}  // namespace tarnview
