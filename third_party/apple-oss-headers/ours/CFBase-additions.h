
/* ---- Ours (tvpolicy), not Apple's: appended to CFBase.h by assemble.sh. ----
 * The SystemConfiguration and Security headers of macOS 10.13 expect CoreFoundation macros that
 * came after CF-1153: the nullability regions and CF_ENUM with one argument (an anonymous enum
 * of a given type). Defined here as later CoreFoundation defines them. */
#ifndef CF_ASSUME_NONNULL_BEGIN
#if __has_feature(assume_nonnull)
#define CF_ASSUME_NONNULL_BEGIN _Pragma("clang assume_nonnull begin")
#define CF_ASSUME_NONNULL_END _Pragma("clang assume_nonnull end")
#else
#define CF_ASSUME_NONNULL_BEGIN
#define CF_ASSUME_NONNULL_END
#endif
#endif
#ifndef CF_NOESCAPE
#define CF_NOESCAPE __attribute__((noescape))
#endif
#ifndef CF_SWIFT_NAME
#define CF_SWIFT_NAME(_name)
#endif
#ifndef CF_REFINED_FOR_SWIFT
#define CF_REFINED_FOR_SWIFT
#endif
#ifndef CF_WARN_UNUSED_RESULT
#define CF_WARN_UNUSED_RESULT __attribute__((warn_unused_result))
#endif
#ifndef CF_STRING_ENUM
#define CF_STRING_ENUM
#define CF_EXTENSIBLE_STRING_ENUM
#define CF_TYPED_ENUM
#define CF_TYPED_EXTENSIBLE_ENUM
#endif
#undef CF_ENUM
#undef CF_OPTIONS
#define __CF_ENUM_GET_MACRO(_1, _2, NAME, ...) NAME
#if (__cplusplus && __cplusplus >= 201103L) || __has_feature(objc_fixed_enum)
#define __CF_NAMED_ENUM(_type, _name) enum _name : _type _name; enum _name : _type
#define __CF_ANON_ENUM(_type) enum : _type
#define __CF_NAMED_OPTIONS(_type, _name) _type _name; enum : _type
#else
#define __CF_NAMED_ENUM(_type, _name) _type _name; enum
#define __CF_ANON_ENUM(_type) enum
#define __CF_NAMED_OPTIONS(_type, _name) _type _name; enum
#endif
#define CF_ENUM(...) __CF_ENUM_GET_MACRO(__VA_ARGS__, __CF_NAMED_ENUM, __CF_ANON_ENUM, )(__VA_ARGS__)
#define CF_OPTIONS(_type, _name) __CF_NAMED_OPTIONS(_type, _name)
/* ---- end of ours ---- */
