#include "host/parse/DnsAnswer.h"

#include <arpa/nameser.h>
#include <resolv.h>

namespace tvpolicy::parse {

namespace {

constexpr std::size_t maxTargetLength = 254;  // what a 255-byte name buffer holds

// Calls `take` with every answer record of `type` and class IN in `message`, in order.
template <typename Take>
void eachAnswer(const std::vector<unsigned char>& message, ns_type type, Take take)
{
    ns_msg handle;
    if (message.empty() || ::ns_initparse(message.data(), static_cast<int>(message.size()), &handle) != 0) {
        return;
    }
    int count = ns_msg_count(handle, ns_s_an);
    for (int i = 0; i < count; ++i) {
        ns_rr record;
        if (::ns_parserr(&handle, ns_s_an, i, &record) != 0) {
            return;  // the rest of the section is unreadable
        }
        if (ns_rr_type(record) == type && ns_rr_class(record) == ns_c_in) {
            take(handle, record);
        }
    }
}

}  // namespace

std::vector<SrvAnswer> srvAnswers(const std::vector<unsigned char>& message)
{
    std::vector<SrvAnswer> answers;
    eachAnswer(message, ns_t_srv, [&answers](const ns_msg& handle, const ns_rr& record) {
        const unsigned char* data = ns_rr_rdata(record);
        if (ns_rr_rdlen(record) < 6) {
            return;
        }
        SrvAnswer answer;
        answer.priority = static_cast<std::uint16_t>(ns_get16(data));
        answer.weight = static_cast<std::uint16_t>(ns_get16(data + 2));
        answer.port = static_cast<std::uint16_t>(ns_get16(data + 4));
        char name[NS_MAXDNAME * 4 + 1];  // room for every byte written as \DDD
        if (::dn_expand(ns_msg_base(handle), ns_msg_end(handle), data + 6, name, sizeof name) >= 0) {
            answer.target = name;
            if (answer.target.size() > maxTargetLength) {
                answer.target.resize(maxTargetLength);
            }
        }
        answers.push_back(std::move(answer));
    });
    return answers;
}

std::vector<std::string> txtAnswers(const std::vector<unsigned char>& message)
{
    std::vector<std::string> texts;
    eachAnswer(message, ns_t_txt, [&texts](const ns_msg&, const ns_rr& record) {
        const unsigned char* item = ns_rr_rdata(record);
        const unsigned char* end = item + ns_rr_rdlen(record);
        while (item < end) {
            std::size_t length = *item++;
            if (length > static_cast<std::size_t>(end - item)) {
                return;  // an item that runs past its record: the record ends here
            }
            std::string text(reinterpret_cast<const char*>(item), length);
            item += length;
            if (text.find('=') != std::string::npos) {
                texts.push_back(std::move(text));
            }
        }
    });
    return texts;
}

}  // namespace tvpolicy::parse
