#ifndef ZEF_XML_PARSE_STOP_H
#define ZEF_XML_PARSE_STOP_H

#include <cstddef>
#include <string>

namespace ZefModelRepositoryService {

/// The refusal of one in-memory document by a filter of the reading chain,
/// shared by every filter of that chain.
///
/// The XML reader cannot be stopped by an exception thrown from one of its
/// callbacks: the XML library's parser is then left marked busy and is never
/// freed. Instead, the first refusal overwrites the rest of the document with
/// NUL bytes, which no encoding allows: the reader has copied only the chunk
/// it is working on, so it stops at the next chunk with an error of its own
/// and cleans up. The caller then reports reason() instead of that error.
/// The filters pass no event on once the document is refused, so the DOM
/// never grows past a limit.
class XmlParseStop {
public:
    /// `document` and `size`: the text being parsed, which stop() overwrites.
    XmlParseStop(char* document, std::size_t size);

    XmlParseStop(const XmlParseStop&) = delete;
    XmlParseStop& operator=(const XmlParseStop&) = delete;

    /// Refuses the document for `reason`; only the first reason is kept.
    void stop(const std::string& reason);

    /// Whether the document has been refused.
    bool stopped() const { return !_reason.empty(); }

    /// Why the document was refused; empty while it is not.
    const std::string& reason() const { return _reason; }

    /// The document text (all NUL bytes once stopped) and its size.
    const char* document() const { return _document; }
    std::size_t size() const { return _size; }

private:
    char* _document;
    std::size_t _size;
    std::string _reason;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_XML_PARSE_STOP_H
