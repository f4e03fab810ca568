#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "JsonWriter.h"

namespace {

TEST(JsonWriterTest, WritesNestedContainersIndentedWithCommasBetweenItems) {
    std::ostringstream out;
    JsonWriter json(out);
    json.beginObject();
    json.member("name", "x");
    json.member("count", static_cast<int64_t>(-3));
    json.key("list");
    json.beginArray();
    json.value(true);
    json.null();
    json.beginObject();
    json.member("ok", false);
    json.endObject();
    json.endArray();
    json.key("empty");
    json.beginArray();
    json.endArray();
    json.key("nothing");
    json.beginObject();
    json.endObject();
    json.endObject();
    json.finish();
    EXPECT_EQ("{\n"
              "  \"name\": \"x\",\n"
              "  \"count\": -3,\n"
              "  \"list\": [\n"
              "    true,\n"
              "    null,\n"
              "    {\n"
              "      \"ok\": false\n"
              "    }\n"
              "  ],\n"
              "  \"empty\": [],\n"
              "  \"nothing\": {}\n"
              "}\n",
              out.str());
}

TEST(JsonWriterTest, KeysAndTextsAreEscaped) {
    std::ostringstream out;
    JsonWriter json(out);
    json.beginObject();
    json.member("a\"b", std::string("c\nd"));
    json.endObject();
    EXPECT_EQ("{\n  \"a\\\"b\": \"c\\nd\"\n}", out.str());
}

} // namespace
