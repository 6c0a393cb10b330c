// Reading the agent's configuration: a 1 MB document with 10,000 login fields, parsed by
// AgentConfigXML::parse (hardened parser, depth limits, every field and element read) against
// the peer, a bare Xerces-C DOM parse of the same bytes with namespaces on and nothing read.
#include <tvpolicy/agent/AgentConfigXML.h>
#include <tvpolicy/agent/AgentSchema.h>

#include <benchmark/benchmark.h>

#include <iostream>

#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>

#include "xml/XmlPlatform.h"

namespace {

const std::string& configuration()
{
    static const std::string text = [] {
        std::string doc = std::string("<?xml version='1.0' encoding='UTF-8'?>\n<config xmlns='") +
                          com::torvane::agentSchemaNamespace + "'>\n";
        for (int i = 0; i < 10000; ++i) {
            std::string n = std::to_string(i);
            doc += "<field name='f" + n + "'><label>Field " + n +
                   "</label><type>SELECT</type>"
                   "<option><name>A</name><value>a" +
                   n + "</value></option></field>\n";
        }
        doc +=
            "<loginUrl>https://nac.example/login</loginUrl><scanUrl>https://nac.example/scan</scanUrl>"
            "<showIntro>false</showIntro><rescanText>Scan again</rescanText><connTestURL>http://t/</connTestURL>"
            "</config>\n";
        return doc;
    }();
    return text;
}

void BM_AgentConfigXML_parse(benchmark::State& state)
{
    const std::string& text = configuration();
    for (auto _ : state) {
        auto config = com::torvane::AgentConfigXML::parse(text);
        if (config->fieldList.size() != 10000) {
            state.SkipWithError("fields missing");
        }
        benchmark::DoNotOptimize(config.get());
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * text.size()));
}
BENCHMARK(BM_AgentConfigXML_parse)->Unit(benchmark::kMillisecond);

// Peer: the XML library alone, building the same DOM tree and reading nothing from it.
void BM_AgentConfigXML_peer_bareXercesDom(benchmark::State& state)
{
    const std::string& text = configuration();
    tvpolicy::xml::ensurePlatform();
    for (auto _ : state) {
        xercesc::XercesDOMParser parser;
        parser.setDoNamespaces(true);
        xercesc::MemBufInputSource input(reinterpret_cast<const XMLByte*>(text.data()), text.size(), "peer", false);
        parser.parse(input);
        benchmark::DoNotOptimize(parser.getDocument());
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * text.size()));
}
BENCHMARK(BM_AgentConfigXML_peer_bareXercesDom)->Unit(benchmark::kMillisecond);

}  // namespace
