#ifndef ZEF_TEST_SCRATCH_DIR_H
#define ZEF_TEST_SCRATCH_DIR_H

// A fresh folder below TMPDIR for one test, removed with everything in it
// when the test ends, and small file helpers around it.

#include <dirent.h>
#include <ftw.h>
#include <stdlib.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

class ScratchDir {
public:
    explicit ScratchDir(const std::string& prefix = "scratch") {
        const char* tmp = getenv("TMPDIR");
        std::string pattern = std::string(tmp != nullptr ? tmp : "/tmp") + "/" + prefix + "-XXXXXX";
        std::vector<char> buffer(pattern.begin(), pattern.end());
        buffer.push_back('\0');
        if (mkdtemp(buffer.data()) == nullptr)
            throw std::runtime_error("cannot create scratch folder " + pattern);
        _path = buffer.data();
    }

    ~ScratchDir() {
        nftw(_path.c_str(), removeEntry, 16, FTW_DEPTH | FTW_PHYS);
    }

    ScratchDir(const ScratchDir&) = delete;
    ScratchDir& operator=(const ScratchDir&) = delete;

    const std::string& path() const { return _path; }
    std::string file(const std::string& name) const { return _path + "/" + name; }

    /// Names of the entries of the folder, sorted.
    std::vector<std::string> entries() const {
        std::vector<std::string> names;
        if (DIR* dir = opendir(_path.c_str())) {
            while (struct dirent* entry = readdir(dir)) {
                const std::string name = entry->d_name;
                if (name != "." && name != "..")
                    names.push_back(name);
            }
            closedir(dir);
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    void write(const std::string& name, const std::string& content) const {
        std::ofstream out(file(name), std::ios::binary | std::ios::trunc);
        out << content;
    }

    /// The content of a file; empty when it cannot be read.
    static std::string read(const std::string& path) {
        std::ifstream in(path, std::ios::binary);
        std::ostringstream content;
        content << in.rdbuf();
        return content.str();
    }

    /// The lines of a file without their newlines.
    static std::vector<std::string> lines(const std::string& path) {
        std::vector<std::string> result;
        std::ifstream in(path, std::ios::binary);
        std::string line;
        while (std::getline(in, line))
            result.push_back(line);
        return result;
    }

    static bool exists(const std::string& path) { return access(path.c_str(), F_OK) == 0; }

private:
    static int removeEntry(const char* path, const struct stat*, int, struct FTW*) {
        ::remove(path);
        return 0;
    }

    std::string _path;
};

#endif // ZEF_TEST_SCRATCH_DIR_H
