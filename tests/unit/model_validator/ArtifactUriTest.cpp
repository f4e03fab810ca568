#include <gtest/gtest.h>

#include <string>

#include "ArtifactUri.h"

namespace {

TEST(ArtifactUriTest, ARelativePathBelowTheWorkingFolderStaysRelative) {
    const ArtifactUri uri("models/a.xml", "/work/ci");
    EXPECT_TRUE(uri.isRelative());
    EXPECT_EQ("models/a.xml", uri.uri());
}

TEST(ArtifactUriTest, DotSegmentsAreResolvedInTheText) {
    EXPECT_EQ("a.xml", ArtifactUri("./a.xml", "/work/ci").uri());
    EXPECT_EQ("models/a.xml", ArtifactUri("models/../models/./a.xml", "/work/ci").uri());
    EXPECT_EQ("models/a.xml", ArtifactUri("models//a.xml", "/work/ci").uri());
}

TEST(ArtifactUriTest, AnAbsolutePathBelowTheWorkingFolderBecomesRelative) {
    const ArtifactUri uri("/work/ci/models/a.xml", "/work/ci/");
    EXPECT_TRUE(uri.isRelative());
    EXPECT_EQ("models/a.xml", uri.uri());
}

TEST(ArtifactUriTest, APathOutsideTheWorkingFolderIsAnAbsoluteFileUri) {
    const ArtifactUri up("../other/a.xml", "/work/ci");
    EXPECT_FALSE(up.isRelative());
    EXPECT_EQ("file:///work/other/a.xml", up.uri());
    EXPECT_EQ("file:///tmp/a.xml", ArtifactUri("/tmp/a.xml", "/work/ci").uri());
    // A folder whose name only begins like the working folder is outside it.
    EXPECT_EQ("file:///work/cix/a.xml", ArtifactUri("/work/cix/a.xml", "/work/ci").uri());
}

TEST(ArtifactUriTest, BytesOutsideTheUnreservedSetArePercentEncoded) {
    EXPECT_EQ("my%20models/a%23b%25.xml", ArtifactUri("my models/a#b%.xml", "/w").uri());
    EXPECT_EQ("gr%C3%BCn.xml", ArtifactUri("gr\xC3\xBCn.xml", "/w").uri());
    EXPECT_EQ("a-b_c~d.xml", ArtifactUri::encode("a-b_c~d.xml"));
}

TEST(ArtifactUriTest, AFolderUriEndsInASlash) {
    EXPECT_EQ("file:///work/ci/", ArtifactUri::folderUri("/work/ci"));
    EXPECT_EQ("file:///work/my%20ci/", ArtifactUri::folderUri("/work/my ci/"));
    EXPECT_EQ("file:///", ArtifactUri::folderUri("/"));
}

} // namespace
