#include "JsonWriter.h"

#include "ReportText.h"

JsonWriter::JsonWriter(std::ostream& out) : _out(out) {}

void JsonWriter::beforeValue() {
    if (_afterKey) {
        _afterKey = false;
        return;
    }
    if (_hasItems.empty()) {
        return;
    }
    if (_hasItems.back()) {
        _out << ',';
    }
    _hasItems.back() = true;
    _out << '\n' << std::string(2 * _hasItems.size(), ' ');
}

void JsonWriter::open(char bracket) {
    beforeValue();
    _out << bracket;
    _hasItems.push_back(false);
}

void JsonWriter::close(char bracket) {
    const bool hadItems = _hasItems.back();
    _hasItems.pop_back();
    if (hadItems) {
        _out << '\n' << std::string(2 * _hasItems.size(), ' ');
    }
    _out << bracket;
}

void JsonWriter::beginObject() { open('{'); }

void JsonWriter::endObject() { close('}'); }

void JsonWriter::beginArray() { open('['); }

void JsonWriter::endArray() { close(']'); }

void JsonWriter::key(const std::string& name) {
    beforeValue();
    _out << ReportText::json(name) << ": ";
    _afterKey = true;
}

void JsonWriter::value(const std::string& text) {
    beforeValue();
    _out << ReportText::json(text);
}

void JsonWriter::value(const char* text) { value(std::string(text != nullptr ? text : "")); }

void JsonWriter::value(int64_t number) {
    beforeValue();
    _out << number;
}

void JsonWriter::value(bool flag) {
    beforeValue();
    _out << (flag ? "true" : "false");
}

void JsonWriter::null() {
    beforeValue();
    _out << "null";
}

void JsonWriter::finish() { _out << '\n'; }
