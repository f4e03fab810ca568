#ifndef ZEF_DN_UTIL_H
#define ZEF_DN_UTIL_H

#include <string>

namespace Zef {

/// Helpers for distinguished names written as comma-separated "Class=value"
/// pairs, the leaf last ("Top=1,Sub=2,Leaf=3"). A value may hold an escaped
/// comma ("\,"), which does not separate pairs.
class DnUtil {
public:
    /// The class of the leaf pair ("Leaf" for "Top=1,Sub=2,Leaf=3"); the
    /// whole leaf pair when it has no "="; empty for an empty name.
    static std::string getClass(const std::string& dn);
    /// The name without its leaf pair ("Top=1,Sub=2"); empty when the name
    /// has a single pair.
    static std::string popLeafClass(const std::string& dn);

private:
    /// Position of the comma before the leaf pair, or npos when there is none.
    static std::string::size_type leafSeparator(const std::string& dn);
};

} // namespace Zef

#endif // ZEF_DN_UTIL_H
