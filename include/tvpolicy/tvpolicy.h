#pragma once

// libtvpolicy: proves that this computer complies with a network-access policy.
//
// An embedder includes this header, or only the headers of the classes it uses (one class per
// header under tvpolicy/policy/, checks/, agent/, host/ and base/), and links the library:
// find_package(tvpolicy) gives the target tvpolicy::tvpolicy, pkg-config the package tvpolicy.
//
// The smallest program that runs a policy:
//
//     #include <tvpolicy/tvpolicy.h>
//
//     #include <iostream>
//     #include <memory>
//
//     int main()
//     {
//         std::unique_ptr<Policy> policy(Policy::parseFromString(
//             "<policy name='p'><section name='s' primary='true'><true/></section></policy>", true));
//         if (policy->getFatalParseError()) {
//             std::cerr << policy->getFatalErrorMsg() << '\n';
//             return 2;
//         }
//         return policy->run() ? 0 : 1;  // every section passed: compliant
//     }
//
// The checks read this computer through the current host probe (tvpolicy/host/HostProbe.h); a
// tvpolicy::ScopedHost over a described host evaluates the same policy against other facts.

#include <tvpolicy/version.h>

#include <tvpolicy/agent/AgentConfigXML.h>
#include <tvpolicy/agent/AgentSchema.h>
#include <tvpolicy/agent/AgentStatusXML.h>
#include <tvpolicy/agent/BasicHttpRequest.h>
#include <tvpolicy/agent/DocumentCheck.h>
#include <tvpolicy/agent/LoginField.h>
#include <tvpolicy/agent/LoginFieldOption.h>
#include <tvpolicy/agent/ParseErrorHandler.h>
#include <tvpolicy/agent/SRVRecord.h>
#include <tvpolicy/agent/SslStreamSocket.h>
#include <tvpolicy/agent/StreamSocket.h>
#include <tvpolicy/agent/TV_XMLTranscoder.h>
#include <tvpolicy/agent/TXTRecord.h>
#include <tvpolicy/agent/WifiConfigurationProfile.h>
#include <tvpolicy/agent/WifiManager.h>
#include <tvpolicy/base/Signal.h>
#include <tvpolicy/base/Timestamp.h>
#include <tvpolicy/base/Utf8.h>
#include <tvpolicy/base/Utilities.h>
#include <tvpolicy/checks/Avast.h>
#include <tvpolicy/checks/AvastVersionTask.h>
#include <tvpolicy/checks/DelimVersion.h>
#include <tvpolicy/checks/File.h>
#include <tvpolicy/checks/FileTask.h>
#include <tvpolicy/checks/FlushDNS.h>
#include <tvpolicy/checks/MacOSXVersionTask.h>
#include <tvpolicy/checks/McAfeeVirusScanVersionTask.h>
#include <tvpolicy/checks/Monitor.h>
#include <tvpolicy/checks/MonitorResponse.h>
#include <tvpolicy/checks/PostureTasks.h>
#include <tvpolicy/checks/ProcessExistsTask.h>
#include <tvpolicy/checks/ProcessList.h>
#include <tvpolicy/checks/VersionCheckTask.h>
#include <tvpolicy/checks/VersionEvidence.h>
#include <tvpolicy/checks/VersionFromReceiptTask.h>
#include <tvpolicy/checks/VersionFromScriptTask.h>
#include <tvpolicy/host/ApplicationInventoryItem.h>
#include <tvpolicy/host/DescribedHostProbe.h>
#include <tvpolicy/host/EventProbe.h>
#include <tvpolicy/host/ForwardingHostProbe.h>
#include <tvpolicy/host/HostProbe.h>
#include <tvpolicy/host/IPChangeNotifier.h>
#include <tvpolicy/host/MACChangeNotifier.h>
#include <tvpolicy/host/Machine.h>
#include <tvpolicy/host/NameServer.h>
#include <tvpolicy/host/NetworkInterface.h>
#include <tvpolicy/host/NetworkInterfaceXML.h>
#include <tvpolicy/host/NetworkProbe.h>
#include <tvpolicy/host/PostureProbe.h>
#include <tvpolicy/host/PowerChangeNotifier.h>
#include <tvpolicy/host/ProcessTableSnapshot.h>
#include <tvpolicy/host/Timestamp.h>
#include <tvpolicy/host/Utilities.h>
#include <tvpolicy/policy/Option.h>
#include <tvpolicy/policy/Policy.h>
#include <tvpolicy/policy/Section.h>
#include <tvpolicy/policy/Signal.h>
#include <tvpolicy/policy/Task.h>
#include <tvpolicy/policy/TaskCatalog.h>
#include <tvpolicy/policy/TaskFactory.h>
#include <tvpolicy/policy/TaskMap.h>
#include <tvpolicy/policy/TaskResponse.h>
#include <tvpolicy/policy/TaskSource.h>
#include <tvpolicy/policy/ValidateTask.h>
#include <tvpolicy/policy/andTask.h>
#include <tvpolicy/policy/falseTask.h>
#include <tvpolicy/policy/notTask.h>
#include <tvpolicy/policy/orTask.h>
#include <tvpolicy/policy/trueTask.h>
