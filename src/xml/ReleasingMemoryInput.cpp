#include "xml/ReleasingMemoryInput.h"

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstring>

#include <xercesc/util/BinInputStream.hpp>

namespace tvpolicy::xml {

namespace {

class ReleasingStream : public xercesc::BinInputStream {
public:
    ReleasingStream(char* data, std::size_t size)
        : data_(data),
          size_(size),
          page_(pageSize()),
          released_(roundUp(address(0)))
    {
    }

    XMLFilePos curPos() const override { return position_; }

    XMLSize_t readBytes(XMLByte* const toFill, const XMLSize_t maxToRead) override
    {
        std::size_t count = std::min<std::size_t>(maxToRead, size_ - position_);
        std::memcpy(toFill, data_ + position_, count);
        position_ += count;
        release();
        return count;
    }

    const XMLCh* getContentType() const override { return nullptr; }

private:
    static std::uintptr_t pageSize()
    {
        long size = ::sysconf(_SC_PAGESIZE);
        return size > 0 ? static_cast<std::uintptr_t>(size) : 4096;
    }
    std::uintptr_t address(std::size_t offset) const { return reinterpret_cast<std::uintptr_t>(data_ + offset); }
    std::uintptr_t roundUp(std::uintptr_t at) const { return (at + page_ - 1) / page_ * page_; }

    // Hands back the whole pages between the last run handed back and the reader's position.
    void release()
    {
        std::uintptr_t end = address(position_) / page_ * page_;
        if (end < released_ || end - released_ < ReleasingMemoryInput::releaseStep) {
            return;
        }
#ifdef MADV_DONTNEED
        // Advice only: where the system declines, the pages stay as they were.
        ::madvise(reinterpret_cast<void*>(released_), end - released_, MADV_DONTNEED);
#endif
        released_ = end;
    }

    char* data_;
    std::size_t size_;
    std::size_t position_ = 0;
    std::uintptr_t page_;
    std::uintptr_t released_;  // the pages below this address are handed back
};

}  // namespace

ReleasingMemoryInput::ReleasingMemoryInput(std::string& text, const char* systemId)
    : xercesc::InputSource(systemId),
      text_(text)
{
}

xercesc::BinInputStream* ReleasingMemoryInput::makeStream() const
{
    return new ReleasingStream(text_.data(), text_.size());
}

}  // namespace tvpolicy::xml
