#include "ZefConfiguration.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <memory>

#include <Poco/DOM/DOMBuilder.h>
#include <Poco/Exception.h>
#include <Poco/SAX/SAXParser.h>
#include <Poco/SAX/WhitespaceFilter.h>

#include "PositionFilter.h"

#include "ZefException.h"

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

// The document is read into memory and parsed from there, so that a file
// name is never interpreted as a URI by the XML reader.
std::string readFile(const std::string& name) {
    int fd = ::open(name.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0) {
        throw ZefException(name + " is not readable");
    }
    // Read straight into a buffer of the file's size, in as few calls as it
    // takes; a file that turns out longer grows the buffer block by block.
    std::string content;
    struct stat st;
    if (::fstat(fd, &st) == 0 && st.st_size > 0) {
        content.resize(static_cast<size_t>(st.st_size));
    }
    size_t filled = 0;
    for (;;) {
        if (filled == content.size()) {
            content.resize(content.size() + kReadBlockSize);
        }
        ssize_t n = ::read(fd, &content[filled], content.size() - filled);
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
        filled += static_cast<size_t>(n);
    }
    ::close(fd);
    content.resize(filled);
    return content;
}

} // namespace

void ZefConfiguration::load(const std::string& fileName) {
    std::string text;
    switch (classify(fileName)) {
    case PathKind::Other:
        throw ZefException(fileName + " is not a file");
    case PathKind::Unreadable:
        throw ZefException(fileName + " is not readable");
    case PathKind::RegularFile:
        text = readFile(fileName);
        break;
    case PathKind::Missing:
        text = fileName;
        break;
    }

    // The chain a DOM parser with the white-space filter builds (namespaces
    // and their prefixes reported, no name pool given); while positions are
    // noted, its white-space filter also notes where each element begins.
    _document = nullptr;
    _positions.clear();
    Poco::XML::SAXParser reader;
    reader.setFeature(Poco::XML::XMLReader::FEATURE_NAMESPACES, true);
    reader.setFeature(Poco::XML::XMLReader::FEATURE_NAMESPACE_PREFIXES, true);
    const std::unique_ptr<Poco::XML::WhitespaceFilter> whitespaceFilter(
        _notePositions ? new ZefModelRepositoryService::PositionFilter(&reader, _positions)
                       : new Poco::XML::WhitespaceFilter(&reader));
    Poco::XML::DOMBuilder builder(*whitespaceFilter);
    try {
        _document = builder.parseMemoryNP(text.data(), text.size());
    } catch (const Poco::Exception& e) {
        _document = nullptr;
        _positions.clear();
        throw ZefException(e.displayText());
    }
    if (_notePositions) {
        _positions.assignTo(_document.get());
    }
}

Poco::AutoPtr<Poco::XML::NodeList> ZefConfiguration::getElementsByTagName(const std::string& name) const {
    if (_document.isNull()) {
        return nullptr;
    }
    return _document->getElementsByTagName(name);
}

} // namespace Zef
