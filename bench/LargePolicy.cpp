#include "LargePolicy.h"

namespace tvpolicy::bench {

std::string largePolicySection(int index)
{
    std::string number = std::to_string(index);
    std::string group = "g" + std::to_string(index / 4);
    bool primary = index % 4 == 0;
    return "  <section name=\"Section " + number + "\" group=\"" + group + "\"" + (primary ? " primary=\"true\"" : "") +
           " instr=\"http://nac.example.test/help/" + number +
           "\">\n"
           "    <help>Section " +
           number +
           " checks that the workstation keeps its settings.</help>\n"
           "    <and>\n"
           "      <or><false/><Validate status=\"true\"/><not><false/></not></or>\n"
           "      <not><and><true/><Validate status=\"false\"/></and></not>\n"
           "      <and skipEmpty=\"true\"><true/><or><not><true/></not><true/></or><Validate status=\"true\"/></and>\n"
           "      <or><and><true/><true/></and><false/></or>\n"
           "    </and>\n"
           "    <Validate status=\"true\"/>\n"
           "  </section>\n";
}

const std::string& largePolicyText()
{
    static const std::string text = [] {
        std::string xml = "<?xml version=\"1.0\"?>\n<policy name=\"bench\" base=\"http://nac.example.test/\">\n";
        xml += "  <success><url>success.jsp</url></success>\n";
        for (int i = 0; i < largePolicySections; ++i) {
            xml += largePolicySection(i);
        }
        return xml + "</policy>\n";
    }();
    return text;
}

}  // namespace tvpolicy::bench
