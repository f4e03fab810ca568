#include "MessageTemplate.h"

#include <cctype>
#include <cstring>

namespace ZefModelRepositoryService {

namespace {

const std::string kNoText;

// The length modifiers and conversions a finding text uses, longest first,
// and whether each is a text, a signed or an unsigned number.
struct Conversion {
    const char* spelling;
    int kind; // 0 text, 1 signed, 2 unsigned
};

const Conversion kConversions[] = {
    {"lld", 1}, {"llu", 2}, {"ld", 1}, {"lu", 2}, {"zu", 2}, {"s", 0}, {"d", 1}, {"i", 1}, {"u", 2},
};

} // namespace

MessageTemplate::MessageTemplate(const std::string& text) : _text(text) {
    std::string fixed;
    size_t at = 0;
    while (at < text.size()) {
        if (text[at] != '%') {
            fixed += text[at++];
            continue;
        }
        if (text.compare(at, 2, "%%") == 0) {
            fixed += '%';
            at += 2;
            continue;
        }
        const Conversion* found = nullptr;
        for (const Conversion& conversion : kConversions) {
            if (text.compare(at + 1, std::strlen(conversion.spelling), conversion.spelling) == 0) {
                found = &conversion;
                break;
            }
        }
        if (found == nullptr) {
            fixed += text[at++];
            continue;
        }
        if (!fixed.empty()) {
            _fixedLength += fixed.size();
            _pieces.push_back({PieceKind::Fixed, fixed});
            fixed.clear();
        }
        const PieceKind kind = found->kind == 0 ? PieceKind::Text : found->kind == 1 ? PieceKind::Signed
                                                                                    : PieceKind::Unsigned;
        _pieces.push_back({kind, std::string()});
        at += 1 + std::strlen(found->spelling);
    }
    if (!fixed.empty()) {
        _fixedLength += fixed.size();
        _pieces.push_back({PieceKind::Fixed, fixed});
    }
}

size_t MessageTemplate::argumentCount() const {
    size_t count = 0;
    for (const Piece& piece : _pieces) {
        if (piece.kind != PieceKind::Fixed) {
            ++count;
        }
    }
    return count;
}

const std::string& MessageTemplate::prefix() const {
    return !_pieces.empty() && _pieces.front().kind == PieceKind::Fixed ? _pieces.front().fixed : kNoText;
}

bool MessageTemplate::match(const std::string& message, std::vector<std::string>* arguments) const {
    std::vector<std::string> found;
    if (!matchFrom(message, 0, 0, found)) {
        return false;
    }
    if (arguments != nullptr) {
        *arguments = std::move(found);
    }
    return true;
}

bool MessageTemplate::matchFrom(const std::string& message, size_t piece, size_t at,
                                std::vector<std::string>& arguments) const {
    if (piece == _pieces.size()) {
        return at == message.size();
    }
    const Piece& current = _pieces[piece];
    switch (current.kind) {
    case PieceKind::Fixed:
        return message.compare(at, current.fixed.size(), current.fixed) == 0 &&
               matchFrom(message, piece + 1, at + current.fixed.size(), arguments);
    case PieceKind::Text: {
        // A text argument at the end takes the rest; elsewhere it ends where
        // the next fixed piece first lets the rest match.
        const bool last = piece + 1 == _pieces.size();
        for (size_t end = last ? message.size() : at; end <= message.size(); ++end) {
            if (!last && _pieces[piece + 1].kind == PieceKind::Fixed) {
                end = message.find(_pieces[piece + 1].fixed, end);
                if (end == std::string::npos) {
                    return false;
                }
            }
            arguments.push_back(message.substr(at, end - at));
            if (matchFrom(message, piece + 1, end, arguments)) {
                return true;
            }
            arguments.pop_back();
        }
        return false;
    }
    case PieceKind::Signed:
    case PieceKind::Unsigned: {
        const size_t length = numberLength(message, at, current.kind);
        if (length == 0) {
            return false;
        }
        arguments.push_back(message.substr(at, length));
        if (matchFrom(message, piece + 1, at + length, arguments)) {
            return true;
        }
        arguments.pop_back();
        return false;
    }
    }
    return false;
}

size_t MessageTemplate::numberLength(const std::string& message, size_t at, PieceKind kind) {
    size_t end = at;
    if (kind == PieceKind::Signed && end < message.size() && message[end] == '-') {
        ++end;
    }
    const size_t digits = end;
    while (end < message.size() && std::isdigit(static_cast<unsigned char>(message[end])) != 0) {
        ++end;
    }
    return end > digits ? end - at : 0;
}

} // namespace ZefModelRepositoryService
