#include "host/parse/DnsMessage.h"

namespace tvpolicy::parse {

namespace {

void put16(std::vector<unsigned char>& out, unsigned value)
{
    out.push_back(static_cast<unsigned char>((value >> 8) & 0xFF));
    out.push_back(static_cast<unsigned char>(value & 0xFF));
}

void put32(std::vector<unsigned char>& out, std::uint32_t value)
{
    put16(out, value >> 16);
    put16(out, value & 0xFFFF);
}

std::vector<unsigned char> header(std::uint16_t id, unsigned flags, unsigned answers)
{
    std::vector<unsigned char> out;
    put16(out, id);
    put16(out, flags);
    put16(out, 1);  // one question
    put16(out, answers);
    put16(out, 0);
    put16(out, 0);
    return out;
}

}  // namespace

std::vector<unsigned char> dnsWireName(const std::string& name)
{
    std::vector<unsigned char> out;
    std::string text = name;
    if (!text.empty() && text.back() == '.') {
        text.pop_back();
    }
    std::size_t start = 0;
    while (!text.empty()) {
        std::size_t dot = text.find('.', start);
        std::size_t end = dot == std::string::npos ? text.size() : dot;
        std::size_t length = end - start;
        if (length == 0 || length > 63) {
            return {};
        }
        out.push_back(static_cast<unsigned char>(length));
        out.insert(out.end(), text.begin() + static_cast<std::ptrdiff_t>(start),
                   text.begin() + static_cast<std::ptrdiff_t>(end));
        if (dot == std::string::npos) {
            break;
        }
        start = dot + 1;
    }
    out.push_back(0);
    if (out.size() > 255) {
        return {};
    }
    return out;
}

std::vector<unsigned char> dnsQueryMessage(std::uint16_t id, const std::string& name, std::uint16_t type)
{
    std::vector<unsigned char> wire = dnsWireName(name);
    if (wire.empty()) {
        return {};
    }
    std::vector<unsigned char> out = header(id, 0x0100, 0);  // recursion desired
    out.insert(out.end(), wire.begin(), wire.end());
    put16(out, type);
    put16(out, 1);
    return out;
}

std::vector<unsigned char> dnsAnswerMessage(const std::string& name, std::uint16_t type,
                                            const std::vector<DnsRecord>& records)
{
    std::vector<unsigned char> wire = dnsWireName(name);
    if (wire.empty() || records.size() > 0xFFFF) {
        return {};
    }
    std::vector<unsigned char> out = header(0, 0x8180, static_cast<unsigned>(records.size()));
    out.insert(out.end(), wire.begin(), wire.end());
    put16(out, type);
    put16(out, 1);
    for (const DnsRecord& record : records) {
        if (record.data.size() > 0xFFFF) {
            return {};
        }
        out.insert(out.end(), wire.begin(), wire.end());
        put16(out, record.type);
        put16(out, record.recordClass);
        put32(out, record.ttl);
        put16(out, static_cast<unsigned>(record.data.size()));
        out.insert(out.end(), record.data.begin(), record.data.end());
    }
    return out;
}

}  // namespace tvpolicy::parse
