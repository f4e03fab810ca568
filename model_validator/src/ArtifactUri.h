#ifndef ZEF_ARTIFACT_URI_H
#define ZEF_ARTIFACT_URI_H

#include <string>

/// How a report names a model file as a URI: relative to the working folder
/// when the file lies below it (a code-scanning service then finds it in its
/// checkout), else as an absolute file URI. Paths are taken as written:
/// "." and ".." are resolved in the text, symbolic links are not followed.
class ArtifactUri {
public:
    /// The URI of `path` (as named on the command line) for a run in the
    /// absolute folder `workingFolder`.
    ArtifactUri(const std::string& path, const std::string& workingFolder);

    /// The URI: a relative reference ("models/a.xml") or "file:///...".
    const std::string& uri() const { return _uri; }
    /// True when uri() is relative to the working folder.
    bool isRelative() const { return _relative; }

    /// The file URI of a folder, ending in a slash ("file:///work/").
    static std::string folderUri(const std::string& folder);
    /// `path` with every byte but letters, digits, "-", ".", "_", "~" and
    /// "/" percent-encoded.
    static std::string encode(const std::string& path);

private:
    std::string _uri;
    bool _relative = false;
};

#endif // ZEF_ARTIFACT_URI_H
