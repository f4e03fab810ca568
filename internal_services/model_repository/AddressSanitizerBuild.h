#ifndef ZEF_ADDRESS_SANITIZER_BUILD_H
#define ZEF_ADDRESS_SANITIZER_BUILD_H

namespace ZefModelRepositoryService {

/// Whether this is a build with AddressSanitizer. The pools that cut many
/// small objects from large chunks hand every request to the heap in such
/// a build instead, so that the sanitizer sees each object on its own.
/// g++ names such a build with a macro, clang with a feature.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool kAddressSanitizerBuild = true;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
constexpr bool kAddressSanitizerBuild = true;
#else
constexpr bool kAddressSanitizerBuild = false;
#endif
#else
constexpr bool kAddressSanitizerBuild = false;
#endif

} // namespace ZefModelRepositoryService

#endif // ZEF_ADDRESS_SANITIZER_BUILD_H
