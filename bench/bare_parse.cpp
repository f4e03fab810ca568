// The cost of reading a model set with nothing but the XML reader: each file
// is read into memory and parsed into a Poco DOM document with ignorable
// white space filtered out (as the validator's document holder does), every
// element is visited once through firstChild/nextSibling, and the document
// is released before the next file is read. The benchmark compares the
// validator with this floor.
//
// usage: zef_bare_parse FILE_OR_FOLDER...
//   A folder contributes its .xml files, sorted by name (as -d does).

#include <dirent.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <sys/stat.h>
#include <vector>

#include <Poco/AutoPtr.h>
#include <Poco/DOM/DOMParser.h>
#include <Poco/DOM/Document.h>
#include <Poco/DOM/Node.h>
#include <Poco/Exception.h>

namespace {

bool isFolder(const std::string& path) {
    struct stat info;
    return stat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

bool endsWithXml(const std::string& name) {
    return name.size() > 4 && name.compare(name.size() - 4, 4, ".xml") == 0;
}

void addFolder(const std::string& folder, std::vector<std::string>& files) {
    std::vector<std::string> names;
    if (DIR* dir = opendir(folder.c_str())) {
        while (struct dirent* entry = readdir(dir)) {
            if (endsWithXml(entry->d_name))
                names.push_back(entry->d_name);
        }
        closedir(dir);
    }
    std::sort(names.begin(), names.end());
    for (const std::string& name : names)
        files.push_back(folder + "/" + name);
}

std::string readFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

/// Elements below and including `node`, each visited once, without recursion.
unsigned long countElements(Poco::XML::Node* root) {
    unsigned long elements = 0;
    Poco::XML::Node* node = root;
    while (node != nullptr) {
        if (node->nodeType() == Poco::XML::Node::ELEMENT_NODE)
            ++elements;
        if (Poco::XML::Node* child = node->firstChild()) {
            node = child;
            continue;
        }
        while (node != nullptr && node != root && node->nextSibling() == nullptr)
            node = node->parentNode();
        if (node == nullptr || node == root)
            break;
        node = node->nextSibling();
    }
    return elements;
}

} // namespace

int main(int argc, char** argv) {
    std::vector<std::string> files;
    for (int i = 1; i < argc; ++i) {
        if (isFolder(argv[i]))
            addFolder(argv[i], files);
        else
            files.push_back(argv[i]);
    }
    if (files.empty()) {
        std::fprintf(stderr, "usage: zef_bare_parse FILE_OR_FOLDER...\n");
        return 2;
    }
    unsigned long elements = 0;
    unsigned long long bytes = 0;
    try {
        for (const std::string& file : files) {
            const std::string text = readFile(file);
            bytes += text.size();
            Poco::XML::DOMParser parser;
            parser.setFeature(Poco::XML::DOMParser::FEATURE_FILTER_WHITESPACE, true);
            Poco::AutoPtr<Poco::XML::Document> document = parser.parseMemory(text.data(), text.size());
            elements += countElements(document);
        }
    } catch (const Poco::Exception& e) {
        std::fprintf(stderr, "zef_bare_parse: %s\n", e.displayText().c_str());
        return 1;
    }
    std::printf("%zu files, %llu bytes, %lu elements\n", files.size(), bytes, elements);
    return 0;
}
