// DNS answers as a name server sends them, read for their SRV and TXT records; and the messages
// the library builds itself, read back.
//
// The first byte picks the reading. Odd: the rest is an answer message as received. Even: the
// rest is a name, a zero byte, then records (a length byte and that many data bytes each) that
// are built into a query and an answer message; a name that can be written must come back
// from its wire form unchanged, and an answer of SRV records long enough to hold their numbers
// must give one SRV answer each.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "host/parse/DnsAnswer.h"
#include "host/parse/DnsMessage.h"

namespace {

using tvpolicy::parse::DnsRecord;

void readAnswer(const std::vector<unsigned char>& message)
{
    for (const auto& answer : tvpolicy::parse::srvAnswers(message)) {
        if (answer.target.size() > 254) {
            std::abort();
        }
    }
    tvpolicy::parse::txtAnswers(message);
}

// The dotted name of a wire-form name (labels, then a zero byte).
std::string dottedName(const std::vector<unsigned char>& wire)
{
    std::string name;
    std::size_t at = 0;
    while (at < wire.size() && wire[at] != 0) {
        std::size_t length = wire[at++];
        name.append(reinterpret_cast<const char*>(wire.data() + at), length);
        name += '.';
        at += length;
    }
    return name;
}

void buildAndReadBack(const std::uint8_t* data, std::size_t size, std::uint16_t type)
{
    const std::uint8_t* end = data + size;
    const std::uint8_t* zero = data;
    while (zero != end && *zero != 0) {
        ++zero;
    }
    std::string name(reinterpret_cast<const char*>(data), static_cast<std::size_t>(zero - data));
    std::vector<DnsRecord> records;
    std::size_t srvRecords = 0;
    for (const std::uint8_t* at = zero == end ? end : zero + 1; at != end;) {
        std::size_t length = *at++;
        length = std::min<std::size_t>(length, static_cast<std::size_t>(end - at));
        DnsRecord record;
        record.type = type;
        record.data.assign(at, at + length);
        srvRecords += type == 33 && length >= 6 ? 1 : 0;
        records.push_back(std::move(record));
        at += length;
    }

    std::vector<unsigned char> wire = tvpolicy::parse::dnsWireName(name);
    if (!wire.empty()) {
        std::string expected = name;
        if (!expected.empty() && expected.back() == '.') {
            expected.pop_back();
        }
        if (!expected.empty()) {
            expected += '.';
        }
        if (dottedName(wire) != expected) {
            std::abort();
        }
    }
    readAnswer(tvpolicy::parse::dnsQueryMessage(0x1234, name, type));
    std::vector<unsigned char> answer = tvpolicy::parse::dnsAnswerMessage(name, type, records);
    readAnswer(answer);
    if (!answer.empty() && tvpolicy::parse::srvAnswers(answer).size() != srvRecords) {
        std::abort();
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0) {
        return 0;
    }
    if (data[0] % 2 == 1) {
        readAnswer(std::vector<unsigned char>(data + 1, data + size));
    } else {
        buildAndReadBack(data + 1, size - 1, data[0] % 4 == 0 ? 33 : 16);
    }
    return 0;
}
