#pragma once

// Xerces gives every document it reads a reader object of about 160 KiB. Under ASan a block
// that large is a mapping of its own, so each input paid for an mmap, page faults over the
// fresh pages, an munmap and the shadow's release with their TLB shootdowns: four fifths of
// an XML target's time, the parser's own work a fifth. The XML targets therefore hand Xerces
// a memory manager that keeps such blocks for the next input. A kept block is poisoned while
// it waits, so a use after release is still reported; everything smaller goes to the
// instrumented allocator as before.
#include <cstddef>
#include <new>
#include <unordered_map>
#include <vector>

#include <sanitizer/asan_interface.h>
#include <xercesc/framework/MemoryManager.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLUni.hpp>

namespace fuzz {

class ReusingMemoryManager final : public xercesc::MemoryManager {
public:
    /// Blocks from this size on are kept; the reader's is the only one a small input needs.
    static constexpr std::size_t keptFrom = 64 * 1024;
    static constexpr std::size_t keptAtMost = 16;

    xercesc::MemoryManager* getExceptionMemoryManager() override { return this; }

    void* allocate(XMLSize_t size) override
    {
        if (size >= keptFrom) {
            for (auto it = kept_.begin(); it != kept_.end(); ++it) {
                if (it->size == size) {
                    void* block = it->block;
                    kept_.erase(it);
                    ASAN_UNPOISON_MEMORY_REGION(block, size);
                    lent_.emplace(block, size);
                    return block;
                }
            }
        }
        void* block = nullptr;
        try {
            block = ::operator new(size);
        } catch (const std::bad_alloc&) {
            throw xercesc::OutOfMemoryException();
        }
        if (size >= keptFrom) {
            lent_.emplace(block, size);
        }
        return block;
    }

    void deallocate(void* block) override
    {
        auto lent = lent_.find(block);
        if (lent == lent_.end()) {
            ::operator delete(block);
            return;
        }
        std::size_t size = lent->second;
        lent_.erase(lent);
        if (kept_.size() >= keptAtMost) {
            // The oldest goes, so that an input with blocks of odd sizes does not crowd out
            // the sizes every input needs, and frees still match allocations: libFuzzer runs
            // a full leak check after any input that allocated more than it freed.
            ASAN_UNPOISON_MEMORY_REGION(kept_.front().block, kept_.front().size);
            ::operator delete(kept_.front().block);
            kept_.erase(kept_.begin());
        }
        ASAN_POISON_MEMORY_REGION(block, size);
        kept_.push_back({block, size});
    }

private:
    struct Kept {
        void* block;
        std::size_t size;
    };
    std::unordered_map<void*, std::size_t> lent_;  // large blocks Xerces holds now
    std::vector<Kept> kept_;                       // large blocks waiting for the next input
};

/// Makes Xerces allocate through the manager above. The first initialisation picks the
/// manager; the library's own, later, only counts. The manager is never destroyed: Xerces
/// is never terminated, and the blocks it keeps stay reachable for the leak check at exit.
inline void reuseReaderBuffers()
{
    static auto* manager = new ReusingMemoryManager;
    xercesc::XMLPlatformUtils::Initialize(xercesc::XMLUni::fgXercescDefaultLocale, nullptr, nullptr, manager);
}

}  // namespace fuzz
