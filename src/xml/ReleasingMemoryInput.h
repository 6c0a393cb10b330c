#pragma once

#include <cstddef>
#include <string>

#include <xercesc/sax/InputSource.hpp>

namespace tvpolicy::xml {

/// A document in memory that the reader takes once, from front to back, and that nobody reads
/// after: the whole pages it has passed are handed back to the system as it goes (their bytes
/// are then gone), so a large document does not stay resident beside all that is built from
/// it. `text` must outlive every stream made from this source.
class ReleasingMemoryInput : public xercesc::InputSource {
public:
    /// Pages are handed back in runs of at least this many bytes.
    static constexpr std::size_t releaseStep = std::size_t{256} * 1024;

    ReleasingMemoryInput(std::string& text, const char* systemId);

    xercesc::BinInputStream* makeStream() const override;

private:
    std::string& text_;
};

}  // namespace tvpolicy::xml
