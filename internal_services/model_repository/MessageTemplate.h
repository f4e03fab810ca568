#ifndef ZEF_MESSAGE_TEMPLATE_H
#define ZEF_MESSAGE_TEMPLATE_H

#include <string>
#include <vector>

namespace ZefModelRepositoryService {

/// A printf-style finding text ("Moc (%s) has no parent.") taken apart into
/// its fixed pieces and its conversions, so that a formatted text can be
/// recognised as made from it and its arguments read back.
///
/// Understood conversions: %s (any text, also empty), %d, %i, %ld, %lld
/// (a decimal number with an optional minus), %u, %lu, %llu, %zu (decimal
/// digits) and %% (a percent sign).
class MessageTemplate {
public:
    /// Takes `text` apart; a conversion it does not understand is kept as
    /// fixed text.
    explicit MessageTemplate(const std::string& text);

    /// The template as given.
    const std::string& text() const { return _text; }
    /// The number of conversions (arguments).
    size_t argumentCount() const;
    /// The number of fixed characters: among several templates that match a
    /// text, the one with the most fixed characters says most about it.
    size_t fixedLength() const { return _fixedLength; }
    /// The fixed text before the first conversion.
    const std::string& prefix() const;

    /// True when `message` can be formatted from this template; the
    /// arguments it was formatted with are then put into `arguments` (when
    /// not null), in order. Where an argument could end at several places,
    /// each argument takes the shortest text that lets the rest match.
    bool match(const std::string& message, std::vector<std::string>* arguments = nullptr) const;

private:
    enum class PieceKind { Fixed, Text, Signed, Unsigned };
    struct Piece {
        PieceKind kind;
        std::string fixed;
    };

    // Matches the pieces from `piece` on against the message from `at` on.
    bool matchFrom(const std::string& message, size_t piece, size_t at, std::vector<std::string>& arguments) const;
    // The length of the number of that kind at `at` (0 when there is none).
    static size_t numberLength(const std::string& message, size_t at, PieceKind kind);

    std::string _text;
    std::vector<Piece> _pieces;
    size_t _fixedLength = 0;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_MESSAGE_TEMPLATE_H
