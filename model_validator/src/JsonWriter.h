#ifndef ZEF_JSON_WRITER_H
#define ZEF_JSON_WRITER_H

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

/// Writes one JSON document to a stream, indented by two blanks per level:
/// objects and arrays are opened and closed in pairs, members are named
/// with key() before their value, and the commas take care of themselves.
class JsonWriter {
public:
    explicit JsonWriter(std::ostream& out);

    void beginObject();
    void endObject();
    void beginArray();
    void endArray();
    /// Names the next value of the current object.
    void key(const std::string& name);

    void value(const std::string& text);
    void value(const char* text);
    void value(int64_t number);
    void value(bool flag);
    void null();

    /// key() and value() in one.
    template <typename T> void member(const std::string& name, const T& text) {
        key(name);
        value(text);
    }

    /// Ends the document with a newline; every object and array must be
    /// closed.
    void finish();

private:
    // Writes what comes before a value: a comma after an earlier value of
    // the same container, and the line break and indentation of an item.
    void beforeValue();
    void open(char bracket);
    void close(char bracket);

    std::ostream& _out;
    // One entry per open container: whether it holds a value yet.
    std::vector<bool> _hasItems;
    bool _afterKey = false;
};

#endif // ZEF_JSON_WRITER_H
