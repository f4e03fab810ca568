#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <sstream>
#include <string>

#include "ConfigurationFile.h"
#include "ScratchDir.h"
#include "ZefException.h"

using Zef::ConfigurationFile;
using Zef::ZefException;

namespace {

class ConfigurationFileTest : public ::testing::Test {
protected:
    // Reads `text` as the content of a file named "test.cfg".
    void readText(const std::string& text) {
        std::istringstream in(text);
        cfg.read(in, "test.cfg");
    }

    // The reason of the exception that reading `text` throws; empty when none is thrown.
    std::string errorOf(const std::string& text) {
        try {
            readText(text);
        } catch (const ZefException& e) {
            return e.getReason();
        }
        return std::string();
    }

    // The reason of the exception that loading `path` throws; empty when none is thrown.
    std::string loadErrorOf(const std::string& path) {
        try {
            cfg.load(path);
        } catch (const ZefException& e) {
            return e.getReason();
        }
        return std::string();
    }

    ConfigurationFile cfg;
    ScratchDir scratch{"zef_cfg_test"};
};

TEST_F(ConfigurationFileTest, EmptyConfigurationGivesTheDefaults) {
    EXPECT_FALSE(cfg.hasSection("ModelRepository"));
    EXPECT_FALSE(cfg.hasValue("ModelRepository", "modelSpecFile"));
    EXPECT_EQ("", cfg.getValue("ModelRepository", "modelSpecFile"));
    EXPECT_EQ("fallback", cfg.getValue("ModelRepository", "modelSpecFile", "fallback"));
    EXPECT_EQ("", cfg.getFileName());
}

TEST_F(ConfigurationFileTest, ReadsTheSettingsOfASectionFromAFile) {
    scratch.write("component.cfg", "# Model repository\n"
                                   "[ModelRepository]\n"
                                   "modelSpecFile = /etc/zef/models.txt\n"
                                   "mainRootName = ManagedElement\n");
    cfg.load(scratch.file("component.cfg"));
    EXPECT_EQ(scratch.file("component.cfg"), cfg.getFileName());
    EXPECT_TRUE(cfg.hasSection("ModelRepository"));
    EXPECT_EQ("/etc/zef/models.txt", cfg.getValue("ModelRepository", "modelSpecFile"));
    EXPECT_EQ("ManagedElement", cfg.getValue("ModelRepository", "mainRootName"));
}

TEST_F(ConfigurationFileTest, TheConstructorReadsTheFile) {
    scratch.write("component.cfg", "[ModelRepository]\nmainRootName = Root\n");
    ConfigurationFile loaded(scratch.file("component.cfg"));
    EXPECT_EQ("Root", loaded.getValue("ModelRepository", "mainRootName"));
}

TEST_F(ConfigurationFileTest, BlanksAroundNamesKeysAndValuesAreIgnored) {
    readText("  [  ModelRepository  ]  \n\t modelSpecFile\t=\t /a b/c.txt \t\n");
    EXPECT_TRUE(cfg.hasSection("ModelRepository"));
    EXPECT_EQ("/a b/c.txt", cfg.getValue("ModelRepository", "modelSpecFile"));
}

TEST_F(ConfigurationFileTest, CommentsAndBlankLinesAreSkipped) {
    readText("# hash comment\n; semicolon comment\n\n   \n[S]\n  # indented comment\nkey = value\n");
    EXPECT_EQ("value", cfg.getValue("S", "key"));
}

TEST_F(ConfigurationFileTest, TheValueIsEverythingAfterTheFirstEquals) {
    readText("[S]\nkey = a=b # not a comment ; nor this\n");
    EXPECT_EQ("a=b # not a comment ; nor this", cfg.getValue("S", "key"));
}

TEST_F(ConfigurationFileTest, AnEmptyValueIsSet) {
    readText("[S]\nkey =\n");
    EXPECT_TRUE(cfg.hasValue("S", "key"));
    EXPECT_EQ("", cfg.getValue("S", "key", "fallback"));
}

TEST_F(ConfigurationFileTest, SectionsKeepTheirOwnKeys) {
    readText("[A]\nkey = a\n[B]\nkey = b\n");
    EXPECT_EQ("a", cfg.getValue("A", "key"));
    EXPECT_EQ("b", cfg.getValue("B", "key"));
    EXPECT_FALSE(cfg.hasValue("C", "key"));
}

TEST_F(ConfigurationFileTest, ASectionMayAppearTwice) {
    readText("[A]\nfirst = 1\n[B]\nother = 2\n[A]\nsecond = 3\n");
    EXPECT_EQ("1", cfg.getValue("A", "first"));
    EXPECT_EQ("3", cfg.getValue("A", "second"));
}

TEST_F(ConfigurationFileTest, AnEmptySectionIsKnown) {
    readText("[Empty]\n");
    EXPECT_TRUE(cfg.hasSection("Empty"));
    EXPECT_FALSE(cfg.hasValue("Empty", "key"));
}

TEST_F(ConfigurationFileTest, NamesAndKeysAreCaseSensitive) {
    readText("[ModelRepository]\nmodelspecfile = x\n");
    EXPECT_FALSE(cfg.hasValue("ModelRepository", "modelSpecFile"));
    EXPECT_FALSE(cfg.hasSection("modelrepository"));
    EXPECT_EQ("x", cfg.getValue("ModelRepository", "modelspecfile"));
}

TEST_F(ConfigurationFileTest, WindowsLineEndsAndAByteOrderMarkAreAccepted) {
    readText("\xEF\xBB\xBF[S]\r\nkey = value\r\n");
    EXPECT_TRUE(cfg.hasSection("S"));
    EXPECT_EQ("value", cfg.getValue("S", "key"));
}

TEST_F(ConfigurationFileTest, ALastLineWithoutNewlineCounts) {
    readText("[S]\nkey = value");
    EXPECT_EQ("value", cfg.getValue("S", "key"));
}

TEST_F(ConfigurationFileTest, ALineWithoutEqualsIsAnErrorWithItsLineNumber) {
    EXPECT_EQ("test.cfg:3: expected 'key = value', a [section] header or a comment, found 'modelSpecFile /x'",
              errorOf("[S]\n\nmodelSpecFile /x\n"));
}

TEST_F(ConfigurationFileTest, ASettingBeforeAnySectionIsAnError) {
    EXPECT_EQ("test.cfg:2: setting 'key' comes before the first [section] header", errorOf("# c\nkey = v\n[S]\n"));
}

TEST_F(ConfigurationFileTest, AMissingKeyIsAnError) {
    EXPECT_EQ("test.cfg:2: setting '= value' has no key before '='", errorOf("[S]\n= value\n"));
}

TEST_F(ConfigurationFileTest, AnUnclosedSectionHeaderIsAnError) {
    EXPECT_EQ("test.cfg:1: section header '[ModelRepository' does not end with ']'", errorOf("[ModelRepository\n"));
}

TEST_F(ConfigurationFileTest, ACommentAfterASectionHeaderIsAnError) {
    EXPECT_EQ("test.cfg:1: section header '[S] # main' does not end with ']'", errorOf("[S] # main\n"));
}

TEST_F(ConfigurationFileTest, ASectionWithoutNameIsAnError) {
    EXPECT_EQ("test.cfg:2: section header '[  ]' has no name", errorOf("\n[  ]\n"));
}

TEST_F(ConfigurationFileTest, BracketsInsideASectionNameAreAnError) {
    EXPECT_EQ("test.cfg:1: section name 'A]B' contains '[' or ']'", errorOf("[A]B]\n"));
}

TEST_F(ConfigurationFileTest, AKeySetTwiceInASectionIsAnError) {
    EXPECT_EQ("test.cfg:5: 'key' is set again in section [S] (first set on line 2)",
              errorOf("[S]\nkey = 1\n[T]\n[S]\nkey = 2\n"));
}

TEST_F(ConfigurationFileTest, AnErrorLeavesTheEarlierSettingsInPlace) {
    readText("[S]\nkey = kept\n");
    EXPECT_FALSE(errorOf("[S]\nkey = new\nbroken\n").empty());
    EXPECT_EQ("kept", cfg.getValue("S", "key"));
    EXPECT_EQ("test.cfg", cfg.getFileName());
}

TEST_F(ConfigurationFileTest, LoadingReplacesTheEarlierSettings) {
    readText("[S]\nold = 1\n");
    scratch.write("new.cfg", "[T]\nnew = 2\n");
    cfg.load(scratch.file("new.cfg"));
    EXPECT_FALSE(cfg.hasSection("S"));
    EXPECT_EQ("2", cfg.getValue("T", "new"));
}

TEST_F(ConfigurationFileTest, AMalformedFileNamesTheFileAndLine) {
    scratch.write("bad.cfg", "[ModelRepository]\nmodelSpecFile: /x\n");
    EXPECT_EQ(scratch.file("bad.cfg")
                  + ":2: expected 'key = value', a [section] header or a comment, found 'modelSpecFile: /x'",
              loadErrorOf(scratch.file("bad.cfg")));
}

TEST_F(ConfigurationFileTest, AMissingFileIsAnError) {
    const std::string path = scratch.file("missing.cfg");
    EXPECT_EQ("Configuration file '" + path + "' does not exist.", loadErrorOf(path));
}

TEST_F(ConfigurationFileTest, AnEmptyFileNameIsAMissingFile) {
    EXPECT_EQ("Configuration file '' does not exist.", loadErrorOf(""));
}

TEST_F(ConfigurationFileTest, AFolderIsNotAConfigurationFile) {
    EXPECT_EQ("Configuration file '" + scratch.path() + "' is not a regular file.", loadErrorOf(scratch.path()));
}

TEST_F(ConfigurationFileTest, AFifoIsNotReadAsAConfigurationFile) {
    const std::string path = scratch.file("fifo.cfg");
    ASSERT_EQ(0, mkfifo(path.c_str(), 0600));
    EXPECT_EQ("Configuration file '" + path + "' is not a regular file.", loadErrorOf(path));
}

TEST_F(ConfigurationFileTest, AnUnreadableFileIsAnError) {
    const std::string path = scratch.file("secret.cfg");
    scratch.write("secret.cfg", "[S]\nkey = v\n");
    ASSERT_EQ(0, chmod(path.c_str(), 0));
    if (access(path.c_str(), R_OK) == 0) {
        GTEST_SKIP() << "every file is readable for this user";
    }
    EXPECT_EQ("Configuration file '" + path + "' is not readable.", loadErrorOf(path));
}

TEST_F(ConfigurationFileTest, TheExceptionTextNamesTheProblem) {
    try {
        readText("[S]\nbroken\n");
        FAIL() << "no exception";
    } catch (const ZefException& e) {
        EXPECT_EQ(
            "ZefException(test.cfg:2: expected 'key = value', a [section] header or a comment, found 'broken')",
            std::string(e.what()));
    }
}

} // namespace
