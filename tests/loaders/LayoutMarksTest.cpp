#include <gtest/gtest.h>

#include "base/FileSystem.h"
#include "loaders/LayoutMarks.h"
#include "model/clsFileTypes.h"

namespace tarnview {
namespace {

TEST(LayoutMarks, TellTheFixedLayoutsByTheirHeadings) {
  const std::pair<const char*, int> kRows[] = {{"na.txt", kFMLinkLog},
                                               {"turbo.txt", kFMLinkLog},
                                               {"tec2.dat", kTec2Log},
                                               {"tec3.dat", kTec3Log},
                                               {"linkplus.txt", kLinkPlusLog},
                                               {"utec.csv", kUTECCSVLog},
                                               {"utec-fixed.txt", kUTECFixedLog},
                                               {"universal/me221.csv", kUnknownFile},
                                               {"universal/speeduino.msl", kUnknownFile}};
  for (const auto& [name, type] : kRows)
    EXPECT_EQ(FileTypeByMarks(*RealFileSystem().Read(std::string(TARNVIEW_EXAMPLES) + "/" + name)),
              type)
        << name;
  EXPECT_EQ(FileTypeByMarks(""), kUnknownFile);
  EXPECT_EQ(FileTypeByMarks("Sample  RPM,TIAC\n"), kUnknownFile);
}

}  // namespace
}  // namespace tarnview
