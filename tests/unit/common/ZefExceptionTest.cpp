#include "ZefException.h"

#include <gtest/gtest.h>

#include <string>

using Zef::ZefException;
using Zef::ZefInternalErrorException;
using Zef::ZefInternalException;

TEST(ZefExceptionTest, DefaultHasCodeZeroAndEmptyNameAndReason) {
    ZefException e;
    EXPECT_EQ(0, e.getCode());
    EXPECT_EQ("", e.getName());
    EXPECT_EQ("", e.getReason());
    EXPECT_STREQ("()", e.what());
}

TEST(ZefExceptionTest, StringReasonHasCodeMinusOne) {
    ZefException e(std::string("no such class"));
    EXPECT_EQ(-1, e.getCode());
    EXPECT_EQ("ZefException", e.getName());
    EXPECT_EQ("no such class", e.getReason());
    EXPECT_STREQ("ZefException(no such class)", e.what());
}

TEST(ZefExceptionTest, StringReasonIsTakenAsItStands) {
    ZefException e(std::string("100%s done"));
    EXPECT_EQ("100%s done", e.getReason());
}

TEST(ZefExceptionTest, CodeAndStringReason) {
    ZefException e(ZefNotFound, std::string("missing"));
    EXPECT_EQ(-2, e.getCode());
    EXPECT_EQ("missing", e.getReason());
    EXPECT_STREQ("ZefException(missing)", e.what());
}

TEST(ZefExceptionTest, FormattedReasonHasCodeMinusOne) {
    ZefException e("value %d of %s", 5, "x");
    EXPECT_EQ(-1, e.getCode());
    EXPECT_EQ("value 5 of x", e.getReason());
    EXPECT_STREQ("ZefException(value 5 of x)", e.what());
}

TEST(ZefExceptionTest, CodeAndFormattedReason) {
    ZefException e(ZefAlreadyExists, "key %s", "A~1");
    EXPECT_EQ(-3, e.getCode());
    EXPECT_EQ("key A~1", e.getReason());
    EXPECT_STREQ("ZefException(key A~1)", e.what());
}

TEST(ZefExceptionTest, CauseFormJoinsReasonsWithCommaAndKeepsCauseCode) {
    ZefException cause(ZefInvalidArgument, "A");
    ZefException e(cause, "B");
    EXPECT_EQ("A,B", e.getReason());
    EXPECT_EQ(-8, e.getCode());
    EXPECT_EQ("ZefException", e.getName());
    EXPECT_STREQ("ZefException(A,B)", e.what());
}

TEST(ZefExceptionTest, CauseFormFormatsTheNewText) {
    ZefException cause(ZefNotFound, "no class %s", "Me");
    ZefException e(cause, "while reading %s line %d", "f.xml", 3);
    EXPECT_EQ("no class Me,while reading f.xml line 3", e.getReason());
    EXPECT_EQ(-2, e.getCode());
}

TEST(ZefExceptionTest, ReasonLongerThan1023CharactersIsCut) {
    const std::string longText(2000, 'r');
    EXPECT_EQ(std::string(1023, 'r'), ZefException(longText).getReason());
    EXPECT_EQ(std::string(1023, 'r'), ZefException(ZefFailure, longText).getReason());
    EXPECT_EQ(std::string(1023, 'r'), ZefException("%s", longText.c_str()).getReason());
    EXPECT_EQ(std::string(1023, 'r'), ZefException(ZefFailure, "%s", longText.c_str()).getReason());
    const std::string what = ZefException(longText).what();
    EXPECT_EQ("ZefException(" + std::string(1023, 'r') + ")", what);
}

TEST(ZefExceptionTest, ReasonOf1023CharactersIsKeptWhole) {
    const std::string text(1023, 'k');
    EXPECT_EQ(text, ZefException(text).getReason());
}

TEST(ZefExceptionTest, CauseFormIsCutAt1023Characters) {
    ZefException cause(std::string(1000, 'a'));
    ZefException e(cause, "%s", std::string(100, 'b').c_str());
    EXPECT_EQ(std::string(1000, 'a') + "," + std::string(22, 'b'), e.getReason());
}

TEST(ZefExceptionTest, SetReasonFormatsAndRebuildsWhat) {
    ZefException e(ZefNotFound, "old");
    e.setReason("new %d", 2);
    EXPECT_EQ("new 2", e.getReason());
    EXPECT_STREQ("ZefException(new 2)", e.what());
    EXPECT_EQ(-2, e.getCode());
    e.setWhatString();
    EXPECT_STREQ("ZefException(new 2)", e.what());
}

TEST(ZefExceptionTest, IsThrownByValueAndCaughtAsStdException) {
    try {
        throw ZefException(ZefFailure, "broken %s", "model");
    } catch (const std::exception& e) {
        EXPECT_STREQ("ZefException(broken model)", e.what());
        return;
    }
    FAIL() << "nothing was thrown";
}

TEST(ZefExceptionTest, CopyKeepsEverything) {
    ZefException original(ZefNotFound, "gone");
    ZefException copy(original);
    EXPECT_EQ("gone", copy.getReason());
    EXPECT_EQ(-2, copy.getCode());
    EXPECT_STREQ("ZefException(gone)", copy.what());
}

TEST(ZefInternalExceptionTest, StringFormHasOwnNameAndCodeMinusOne) {
    ZefInternalException e(std::string("bad handle"));
    EXPECT_EQ("ZefInternalException", e.getName());
    EXPECT_EQ(-1, e.getCode());
    EXPECT_EQ("bad handle", e.getReason());
    EXPECT_STREQ("ZefInternalException(bad handle)", e.what());
}

TEST(ZefInternalExceptionTest, FormattedForm) {
    ZefInternalException e("handle %d unknown", 3017);
    EXPECT_EQ("ZefInternalException", e.getName());
    EXPECT_EQ(-1, e.getCode());
    EXPECT_STREQ("ZefInternalException(handle 3017 unknown)", e.what());
}

TEST(ZefInternalExceptionTest, CauseFormKeepsCauseCode) {
    ZefException cause(ZefAlreadyExists, "A");
    ZefInternalException e(cause, "B%d", 1);
    EXPECT_EQ("A,B1", e.getReason());
    EXPECT_EQ(-3, e.getCode());
    EXPECT_STREQ("ZefInternalException(A,B1)", e.what());
}

TEST(ZefInternalExceptionTest, CaughtAsBaseNamesTheSubclass) {
    try {
        throw ZefInternalException("lost %s", "record");
    } catch (const ZefException& e) {
        EXPECT_STREQ("ZefInternalException(lost record)", e.what());
        EXPECT_EQ("ZefInternalException", e.getName());
        return;
    }
    FAIL() << "nothing was thrown";
}

TEST(ZefInternalExceptionTest, ReasonIsCut) {
    ZefInternalException e(std::string(1500, 'i'));
    EXPECT_EQ(std::string(1023, 'i'), e.getReason());
}

TEST(ZefInternalErrorExceptionTest, StringForm) {
    ZefInternalErrorException e(std::string("mutex broken"));
    EXPECT_EQ("ZefInternalErrorException", e.getName());
    EXPECT_EQ(-1, e.getCode());
    EXPECT_STREQ("ZefInternalErrorException(mutex broken)", e.what());
}

TEST(ZefInternalErrorExceptionTest, FormattedForm) {
    ZefInternalErrorException e("failed(%i,%s)", 22, "Invalid argument");
    EXPECT_EQ(-1, e.getCode());
    EXPECT_EQ("failed(22,Invalid argument)", e.getReason());
    EXPECT_STREQ("ZefInternalErrorException(failed(22,Invalid argument))", e.what());
}

TEST(ZefInternalErrorExceptionTest, CauseFormAcrossTheFamily) {
    ZefInternalException cause(std::string("inner"));
    ZefInternalErrorException e(cause, "outer %s", "x");
    EXPECT_EQ("inner,outer x", e.getReason());
    EXPECT_EQ(-1, e.getCode());
    EXPECT_STREQ("ZefInternalErrorException(inner,outer x)", e.what());
}

TEST(ZefInternalErrorExceptionTest, CaughtAsStdExceptionNamesTheSubclass) {
    try {
        throw ZefInternalErrorException("errno %d", 1);
    } catch (const std::exception& e) {
        EXPECT_STREQ("ZefInternalErrorException(errno 1)", e.what());
        return;
    }
    FAIL() << "nothing was thrown";
}
