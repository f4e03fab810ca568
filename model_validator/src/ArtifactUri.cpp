#include "ArtifactUri.h"

#include <cctype>
#include <cstdio>
#include <vector>

namespace {

// The segments of an absolute path, "." and ".." resolved in the text.
std::vector<std::string> segmentsOf(const std::string& absolute) {
    std::vector<std::string> segments;
    size_t at = 0;
    while (at <= absolute.size()) {
        size_t end = absolute.find('/', at);
        if (end == std::string::npos) {
            end = absolute.size();
        }
        const std::string segment = absolute.substr(at, end - at);
        if (segment == "..") {
            if (!segments.empty()) {
                segments.pop_back();
            }
        } else if (!segment.empty() && segment != ".") {
            segments.push_back(segment);
        }
        at = end + 1;
    }
    return segments;
}

std::string joined(const std::vector<std::string>& segments, size_t from) {
    std::string path;
    for (size_t index = from; index < segments.size(); ++index) {
        if (!path.empty()) {
            path += '/';
        }
        path += segments[index];
    }
    return path;
}

} // namespace

ArtifactUri::ArtifactUri(const std::string& path, const std::string& workingFolder) {
    const std::string absolute = !path.empty() && path[0] == '/' ? path : workingFolder + "/" + path;
    const std::vector<std::string> file = segmentsOf(absolute);
    const std::vector<std::string> folder = segmentsOf(workingFolder);
    bool below = file.size() > folder.size();
    for (size_t index = 0; below && index < folder.size(); ++index) {
        below = file[index] == folder[index];
    }
    _relative = below;
    _uri = below ? encode(joined(file, folder.size())) : "file:///" + encode(joined(file, 0));
}

std::string ArtifactUri::folderUri(const std::string& folder) {
    const std::string path = joined(segmentsOf(folder), 0);
    return "file:///" + encode(path) + (path.empty() ? "" : "/");
}

std::string ArtifactUri::encode(const std::string& path) {
    std::string result;
    for (const char c : path) {
        const unsigned char byte = static_cast<unsigned char>(c);
        if (std::isalnum(byte) != 0 && byte < 0x80) {
            result += c;
        } else if (c == '-' || c == '.' || c == '_' || c == '~' || c == '/') {
            result += c;
        } else {
            char escaped[4];
            std::snprintf(escaped, sizeof(escaped), "%%%02X", static_cast<unsigned>(byte));
            result += escaped;
        }
    }
    return result;
}
