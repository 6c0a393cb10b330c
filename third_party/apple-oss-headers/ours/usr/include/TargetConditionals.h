/*
 * Ours (tvpolicy), not Apple's: the target conditionals of macOS on x86_64 and arm64, which the
 * open-source repositories do not carry in a form for these targets. Only what the compile check
 * of the darwin probe needs; every macro is 0 or 1 as on a Mac.
 */
#ifndef __TARGETCONDITIONALS__
#define __TARGETCONDITIONALS__

#if !defined(__APPLE__) || !defined(__MACH__)
#error "TargetConditionals.h of this tree is for macOS targets only"
#endif

#define TARGET_OS_MAC 1
#define TARGET_OS_OSX 1
#define TARGET_OS_IPHONE 0
#define TARGET_OS_IOS 0
#define TARGET_OS_WATCH 0
#define TARGET_OS_BRIDGE 0
#define TARGET_OS_TV 0
#define TARGET_OS_MACCATALYST 0
#define TARGET_OS_UIKITFORMAC 0
#define TARGET_OS_DRIVERKIT 0
#define TARGET_OS_SIMULATOR 0
#define TARGET_OS_EMBEDDED 0
#define TARGET_OS_RTKIT 0
#define TARGET_OS_LINUX 0
#define TARGET_OS_WIN32 0
#define TARGET_OS_UNIX 0
#define TARGET_OS_WINDOWS 0
#define TARGET_IPHONE_SIMULATOR 0
#define TARGET_OS_NANO 0

#if defined(__x86_64__)
#define TARGET_CPU_X86_64 1
#define TARGET_CPU_X86 0
#define TARGET_CPU_ARM64 0
#elif defined(__arm64__) || defined(__aarch64__)
#define TARGET_CPU_X86_64 0
#define TARGET_CPU_X86 0
#define TARGET_CPU_ARM64 1
#else
#error "TargetConditionals.h of this tree knows x86_64 and arm64 only"
#endif
#define TARGET_CPU_PPC 0
#define TARGET_CPU_PPC64 0
#define TARGET_CPU_68K 0
#define TARGET_CPU_ARM 0
#define TARGET_CPU_MIPS 0
#define TARGET_CPU_SPARC 0
#define TARGET_CPU_ALPHA 0
#define TARGET_RT_MAC_CFM 0
#define TARGET_RT_MAC_MACHO 1
#define TARGET_RT_LITTLE_ENDIAN 1
#define TARGET_RT_BIG_ENDIAN 0
#define TARGET_RT_64_BIT 1

#endif /* __TARGETCONDITIONALS__ */
