#pragma once

#include <string>

#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/util/TransService.hpp>

#include <tvpolicy/export.h>

/// Turns the XML parser's UTF-16 strings into UTF-8 byte strings. Characters that UTF-8 cannot
/// represent are replaced, never reported. The XML platform must be initialised (every document
/// reader of the library does it).
class TVPOLICY_API TV_XMLTranscoder {
public:
    /// Always transcodes to UTF-8: the encoding name is accepted and ignored.
    explicit TV_XMLTranscoder(const char* encodingName);
    ~TV_XMLTranscoder();
    TV_XMLTranscoder(const TV_XMLTranscoder&) = delete;
    TV_XMLTranscoder& operator=(const TV_XMLTranscoder&) = delete;

    /// A new zero-terminated UTF-8 buffer (give it back with release); null gives "".
    char* transcode(const XMLCh* text);
    /// Frees a buffer from transcode or transcodeToUtf8; null is ignored.
    static void release(char* buffer);
    /// Assigns the UTF-8 form of `text` to `out`.
    void transcodeToStdString(const XMLCh* text, std::string& out);

    /// As transcode, with a transcoder made for this one call.
    static char* transcodeToUtf8(const XMLCh* text);
    /// As transcodeToStdString, with a transcoder made for this one call.
    static void transcodeToUtf8StdString(const XMLCh* text, std::string& out);

private:
    xercesc::XMLTranscoder* transcoder_;
};

/// Assigns to `out` the text of the last element of `doc` named `tagName` in `namespaceUri`
/// (anywhere in the document). With no such element `out` is left as it was.
TVPOLICY_API void extractTextByTagName(xercesc::DOMDocument* doc, const char* tagName, const XMLCh* namespaceUri,
                                       TV_XMLTranscoder& transcoder, std::string& out);
