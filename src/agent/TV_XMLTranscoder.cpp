#include <tvpolicy/agent/TV_XMLTranscoder.h>

#include <memory>

#include <xercesc/dom/DOMNodeList.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLString.hpp>

#include "xml/DomText.h"
#include "xml/XmlPlatform.h"

using namespace xercesc;

namespace {

constexpr XMLSize_t blockSize = 16384;

XMLTranscoder* makeUtf8Transcoder()
{
    tvpolicy::xml::ensurePlatform();
    XMLTransService::Codes result = XMLTransService::Ok;
    return XMLPlatformUtils::fgTransService->makeNewTranscoderFor("UTF-8", result, blockSize);
}

// Four bytes per 16-bit unit always suffice for UTF-8, plus one for the terminating zero
// (which an empty input needs as well).
char* transcodeWith(XMLTranscoder& transcoder, const XMLCh* text)
{
    XMLSize_t units = text != nullptr ? XMLString::stringLen(text) : 0;
    XMLSize_t capacity = units * 4;
    char* buffer = new char[capacity + 1];
    XMLSize_t eaten = 0;
    XMLSize_t written = units == 0 ? 0
                                   : transcoder.transcodeTo(text, units, reinterpret_cast<XMLByte*>(buffer), capacity,
                                                            eaten, XMLTranscoder::UnRep_RepChar);
    buffer[written] = '\0';
    return buffer;
}

struct BufferRelease {
    void operator()(char* buffer) const { TV_XMLTranscoder::release(buffer); }
};
using Buffer = std::unique_ptr<char, BufferRelease>;

}  // namespace

TV_XMLTranscoder::TV_XMLTranscoder(const char*) : transcoder_(makeUtf8Transcoder()) {}

TV_XMLTranscoder::~TV_XMLTranscoder() { delete transcoder_; }

char* TV_XMLTranscoder::transcode(const XMLCh* text) { return transcodeWith(*transcoder_, text); }

void TV_XMLTranscoder::release(char* buffer) { delete[] buffer; }

void TV_XMLTranscoder::transcodeToStdString(const XMLCh* text, std::string& out)
{
    Buffer buffer(transcode(text));
    out = buffer.get();
}

char* TV_XMLTranscoder::transcodeToUtf8(const XMLCh* text)
{
    std::unique_ptr<XMLTranscoder> transcoder(makeUtf8Transcoder());
    return transcodeWith(*transcoder, text);
}

void TV_XMLTranscoder::transcodeToUtf8StdString(const XMLCh* text, std::string& out)
{
    Buffer buffer(transcodeToUtf8(text));
    out = buffer.get();
}

void extractTextByTagName(DOMDocument* doc, const char* tagName, const XMLCh* namespaceUri, TV_XMLTranscoder&,
                          std::string& out)
{
    if (doc == nullptr) {
        return;
    }
    tvpolicy::xml::WideText name(tagName);
    DOMNodeList* matches = doc->getElementsByTagNameNS(namespaceUri, name);
    if (matches == nullptr) {
        return;
    }
    for (XMLSize_t i = 0, count = matches->getLength(); i < count; ++i) {
        TV_XMLTranscoder::transcodeToUtf8StdString(tvpolicy::xml::textContent(matches->item(i)).c_str(), out);
    }
}
