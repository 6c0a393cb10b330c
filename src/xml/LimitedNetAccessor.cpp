#include "xml/LimitedNetAccessor.h"

#include <iostream>

#include <xercesc/util/BinMemInputStream.hpp>
#include <xercesc/util/XMLNetAccessor.hpp>
#include <xercesc/util/XMLURL.hpp>

#include <tvpolicy/base/Timestamp.h>

#include "base/LogLine.h"
#include "xml/LimitedFetch.h"
#include "xml/XmlText.h"

namespace tvpolicy::xml {

using namespace xercesc;

const XMLCh* LimitedNetAccessor::getId() const
{
    static const XMLCh id[] = {u'L', u'i', u'm', u'i', u't', u'e', u'd', 0};
    return id;
}

BinInputStream* LimitedNetAccessor::makeNew(const XMLURL& url, const XMLNetHTTPInfo* httpInfo)
{
    if (httpInfo != nullptr && httpInfo->fHTTPMethod != XMLNetHTTPInfo::GET) {
        ThrowXML(NetAccessorException, XMLExcepts::NetAcc_UnsupportedMethod);
    }
    std::string address = utf8(url.getURLText());
    Result<FetchedDocument> fetched = fetchDocument(address, documentFetchLimits());
    if (!fetched) {
        tvi::LogLine(std::cout) << "Cannot fetch " << address << ": " << fetched.error();
        ThrowXML1(NetAccessorException, XMLExcepts::NetAcc_ReadSocket, url.getURLText());
    }
    return new BinMemInputStream(reinterpret_cast<const XMLByte*>(fetched->body.data()), fetched->body.size(),
                                 BinMemInputStream::BufOpt_Copy);
}

}  // namespace tvpolicy::xml
