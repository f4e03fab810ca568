#include "XmlParseStop.h"

#include <cstring>

namespace ZefModelRepositoryService {

XmlParseStop::XmlParseStop(char* document, std::size_t size) : _document(document), _size(size) {}

void XmlParseStop::stop(const std::string& reason) {
    if (stopped()) {
        return;
    }
    // A refusal always says why, so that stopped() holds from here on.
    _reason = reason.empty() ? std::string("refused") : reason;
    if (_size > 0) {
        std::memset(_document, 0, _size);
    }
}

} // namespace ZefModelRepositoryService
