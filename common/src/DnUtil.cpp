#include "DnUtil.h"

namespace Zef {

std::string::size_type DnUtil::leafSeparator(const std::string& dn) {
    std::string::size_type separator = std::string::npos;
    bool escaped = false;
    for (std::string::size_type i = 0; i < dn.size(); ++i) {
        if (escaped) {
            escaped = false;
        } else if (dn[i] == '\\') {
            escaped = true;
        } else if (dn[i] == ',') {
            separator = i;
        }
    }
    return separator;
}

std::string DnUtil::getClass(const std::string& dn) {
    std::string::size_type separator = leafSeparator(dn);
    std::string leaf = separator == std::string::npos ? dn : dn.substr(separator + 1);
    std::string::size_type equals = leaf.find('=');
    std::string cls = equals == std::string::npos ? leaf : leaf.substr(0, equals);
    // "A=1, B=2" is written by hand as often as "A=1,B=2".
    std::string::size_type first = cls.find_first_not_of(' ');
    std::string::size_type last = cls.find_last_not_of(' ');
    return first == std::string::npos ? std::string() : cls.substr(first, last - first + 1);
}

std::string DnUtil::popLeafClass(const std::string& dn) {
    std::string::size_type separator = leafSeparator(dn);
    return separator == std::string::npos ? std::string() : dn.substr(0, separator);
}

} // namespace Zef
