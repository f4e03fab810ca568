#include "ZefConfiguration.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <cstring>
#include <memory>

#include <Poco/DOM/DOMBuilder.h>
#include <Poco/DOM/Element.h>
#include <Poco/Exception.h>
#include <Poco/SAX/SAXParser.h>

#include "InputLimits.h"
#include "XmlGuardFilter.h"
#include "XmlParseStop.h"
#include "ZefException.h"
#include "ZefLog.h"

namespace Zef {

bool ZefConfiguration::_notePositions = true;

namespace {

const size_t kReadBlockSize = 8192;

enum class PathKind { Missing, RegularFile, Other, Unreadable };

// A name that cannot name a file (no such entry, or too long to be a path)
// is taken as XML text; anything that exists is judged as a file.
PathKind classify(const std::string& name) {
    struct stat st;
    if (::stat(name.c_str(), &st) != 0) {
        if (errno == ENOENT || errno == ENOTDIR || errno == ENAMETOOLONG || name.empty()) {
            return PathKind::Missing;
        }
        return PathKind::Unreadable;
    }
    if (!S_ISREG(st.st_mode)) {
        return PathKind::Other;
    }
    return ::access(name.c_str(), R_OK) == 0 ? PathKind::RegularFile : PathKind::Unreadable;
}

// Refuses a document that is beyond a limit: the reason is logged as an
// error, so that it is seen whatever the trace level, and the document
// fails like any malformed one.
[[noreturn]] void refuse(const std::string& fileName, const std::string& reason) {
    ZEF_LOG_ERROR("Model file %s refused: %s.", fileName.c_str(), reason.c_str());
    throw ZefException(fileName + " refused: " + reason);
}

// A document's bytes, as read: not cleared first, since every byte of the
// part that is used is written by the read.
struct DocumentText {
    std::unique_ptr<char[]> bytes;
    std::size_t size = 0;

    /// A copy of `text` (a document given in place of a file name).
    static DocumentText of(const std::string& text) {
        DocumentText copy;
        copy.bytes.reset(new char[text.size() + 1]);
        copy.size = text.copy(copy.bytes.get(), text.size());
        return copy;
    }
};

// The document is read into memory and parsed from there, so that a file
// name is never interpreted as a URI by the XML reader. It is opened
// without blocking and checked again once open, so a file replaced by a
// FIFO or a device after the first check cannot stall the run, and its
// size is bounded before and while it is read.
DocumentText readFile(const std::string& name, std::uint64_t maxSize) {
    const int fd = ::open(name.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (fd < 0) {
        throw ZefException(name + " is not readable");
    }
    struct stat st;
    if (::fstat(fd, &st) != 0 || !S_ISREG(st.st_mode)) {
        ::close(fd);
        throw ZefException(name + " is not a file");
    }
    const std::string tooLarge =
        "larger than " + std::to_string(maxSize) + " bytes (ZEF_VALIDATOR_MAX_FILE_SIZE)";
    if (static_cast<std::uint64_t>(st.st_size) > maxSize) {
        ::close(fd);
        refuse(name, tooLarge);
    }
    // Read straight into a buffer of the file's size, in as few calls as it
    // takes; a file that turns out longer grows the buffer block by block.
    // One byte more than the size: the read that finds the end needs room,
    // and a full buffer would be grown (and copied) only to learn that.
    std::size_t capacity = static_cast<std::size_t>(st.st_size) + 1;
    DocumentText content;
    content.bytes.reset(new char[capacity]);
    for (;;) {
        if (content.size == capacity) {
            std::unique_ptr<char[]> larger(new char[capacity + kReadBlockSize]);
            std::memcpy(larger.get(), content.bytes.get(), content.size);
            content.bytes = std::move(larger);
            capacity += kReadBlockSize;
        }
        ssize_t n = ::read(fd, content.bytes.get() + content.size, capacity - content.size);
        if (n < 0 && errno == EINTR) {
            continue;
        }
        if (n < 0) {
            ::close(fd);
            throw ZefException(name + " is not readable");
        }
        if (n == 0) {
            break;
        }
        content.size += static_cast<size_t>(n);
        // A file that grows while it is read is bounded all the same.
        if (content.size > maxSize) {
            ::close(fd);
            refuse(name, tooLarge);
        }
    }
    ::close(fd);
    return content;
}

// Builds the DOM of `text` the way a DOM parser with the white-space filter
// does (namespaces and their prefixes reported, no name pool given), with
// the guard filter between the reader and the builder, which refuses the
// document in this one pass when it is past a limit. `text` is overwritten
// when the document is refused (see XmlParseStop). With `positions`, the
// filter also notes where each element begins. `tally` counts the elements
// of its name.
Poco::AutoPtr<Poco::XML::Document> parseText(const std::string& fileName, DocumentText& text,
                                             const ZefModelRepositoryService::InputLimits& limits,
                                             ZefModelRepositoryService::ElementPositions* positions,
                                             ZefModelRepositoryService::ElementTally& tally) {
    using namespace ZefModelRepositoryService;
    Poco::XML::SAXParser reader;
    reader.setFeature(Poco::XML::XMLReader::FEATURE_NAMESPACES, true);
    reader.setFeature(Poco::XML::XMLReader::FEATURE_NAMESPACE_PREFIXES, true);
    XmlParseStop stop(text.bytes.get(), text.size);
    XmlGuardFilter guardFilter(&reader, stop, limits, positions);
    guardFilter.setTally(&tally);
    Poco::XML::DOMBuilder builder(guardFilter);
    Poco::AutoPtr<Poco::XML::Document> document;
    try {
        document = builder.parseMemoryNP(text.bytes.get(), text.size);
    } catch (const Poco::Exception& e) {
        // The reader's own error, unless a filter stopped it.
        if (!stop.stopped()) {
            throw ZefException(e.displayText());
        }
    }
    if (stop.stopped()) {
        refuse(fileName, stop.reason());
    }
    return document;
}

} // namespace

void ZefConfiguration::load(const std::string& fileName) {
    const ZefModelRepositoryService::InputLimits limits = ZefModelRepositoryService::InputLimits::fromEnvironment();
    DocumentText text;
    switch (classify(fileName)) {
    case PathKind::Other:
        throw ZefException(fileName + " is not a file");
    case PathKind::Unreadable:
        throw ZefException(fileName + " is not readable");
    case PathKind::RegularFile:
        text = readFile(fileName, limits.maxFileSize);
        break;
    case PathKind::Missing:
        text = DocumentText::of(fileName);
        break;
    }
    // The old document goes first: two large documents are never held at once.
    _document = nullptr;
    _positions.clear();
    _tally.restart();
    try {
        _document = parseText(fileName, text, limits, _notePositions ? &_positions : nullptr, _tally);
    } catch (...) {
        _positions.clear();
        _tally.restart();
        throw;
    }
    if (_notePositions) {
        _positions.assignTo(_document.get());
    }
}

Poco::XML::Node* ZefConfiguration::firstTallied() const {
    if (_document.isNull() || _tally.count == 0) {
        return nullptr;
    }
    if (_tally.firstDepth == 1) {
        return _document->documentElement();
    }
    // Deeper down: the first in document order, as a walk that descends
    // before it moves on meets it.
    const Poco::XML::Node* root = _document.get();
    Poco::XML::Node* node = root->firstChild();
    while (node != nullptr) {
        if (node->nodeType() == Poco::XML::Node::ELEMENT_NODE && node->nodeName() == _tally.name) {
            return node;
        }
        if (Poco::XML::Node* child = node->firstChild()) {
            node = child;
            continue;
        }
        while (node != root && node->nextSibling() == nullptr) {
            node = node->parentNode();
        }
        node = node != root ? node->nextSibling() : nullptr;
    }
    return nullptr;
}

Poco::AutoPtr<Poco::XML::NodeList> ZefConfiguration::getElementsByTagName(const std::string& name) const {
    if (_document.isNull()) {
        return nullptr;
    }
    return _document->getElementsByTagName(name);
}

} // namespace Zef
