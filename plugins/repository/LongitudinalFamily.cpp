#include "plugins/repository/LongitudinalFamily.h"

#include <algorithm>
#include <boost/make_shared.hpp>

#include "platform/arx/EdPrompt.h"
#include "platform/win/CodePage.h"
#include "plugins/common/SystemNetwork.h"
#include "plugins/repository/LongitudinalProfile.h"
#include "plugins/repository/RepositoryPrompts.h"
#include "plugins/repository/RepositoryTexts.h"
#include "plugins/repository/SystemEntities.h"
#include "siblings/giscore/utility/XmlElement.h"

namespace Orvane::Repository {

using Network::SystemNetwork;

namespace {

constexpr const wchar_t* kFrom = L"from";
constexpr const wchar_t* kTo = L"to";
constexpr const wchar_t* kHeightAttribute = L"height";
constexpr const wchar_t* kDepthAttribute = L"depth";

/// The number of the node with this name, asking the user if the name is empty. If several nodes
/// have the name, the oldest is used.
std::optional<std::int32_t> FindNode(const SystemNetwork& network, const System::CGisSystem& system,
                                     Msg label, CString& name) {
    if (name.IsEmpty()) {
        name = acedAskText(Text(label), L"").value_or(L"");
    }
    if (name.IsEmpty()) {
        return std::nullopt;
    }
    const std::string wanted = WideToUtf8(name.View());
    for (std::size_t i = 0; i < network.Geometry().NodeCount(); ++i) {
        if (network.NodeName(i) == wanted) {
            return static_cast<std::int32_t>(i);
        }
    }
    Refuse(Text(Msg::NoNode, system.GetSystemName(), name));
    return std::nullopt;
}

std::optional<double> NumberOf(const Topology::CNode& node, const CString& attribute) {
    return attribute.IsEmpty()
               ? std::nullopt
               : Query::ValueNumber(node.GetAttribute(AcDbIntern(WideToUtf8(attribute.View()))));
}

std::vector<ProfileStation> StationsOf(const std::vector<Topology::CNode>& nodes,
                                       const NetworkPath& path,
                                       const LongitudinalDefinition& profile) {
    const bool hasDepths = std::any_of(nodes.begin(), nodes.end(), [&](const auto& node) {
        return NumberOf(node, profile.depthAttribute).has_value();
    });
    std::vector<ProfileStation> stations;
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        const auto height = NumberOf(nodes[i], profile.heightAttribute);
        const auto depth = NumberOf(nodes[i], profile.depthAttribute);
        ProfileStation& station = stations.emplace_back();
        station.chainage = path.chainages[i];
        station.name = nodes[i].GetNameUtf8();
        (hasDepths ? station.invert : station.ground) = height;
        if (height && depth) {
            station.ground = *height + *depth;
        }
    }
    return stations;
}

} // namespace

void LongitudinalDefinition::WriteContent(XmlElement& root) const {
    root.Set(kFrom, from).Set(kTo, to);
    root.Set(kHeightAttribute, heightAttribute).Set(kDepthAttribute, depthAttribute);
}

CString LongitudinalDefinition::ReadContent(const XmlElement& root) {
    from = root.Get(kFrom);
    to = root.Get(kTo);
    heightAttribute = root.Get(kHeightAttribute);
    depthAttribute = root.Get(kDepthAttribute);
    return heightAttribute.IsEmpty() ? Text(Msg::NoHeightAttribute) : CString();
}

boost::shared_ptr<CRepositoryItem> LongitudinalFamily::CreateItem(const wchar_t* guid,
                                                                  const wchar_t* name) {
    return boost::make_shared<LongitudinalDefinition>(guid, name);
}

bool LongitudinalFamily::EditContent(CRepositoryItem& item, const System::CGisSystem* pSystem) {
    auto& profile = static_cast<LongitudinalDefinition&>(item);
    const auto take = [](CString& target, std::optional<CString> answer) {
        if (answer) {
            target = std::move(*answer);
        }
        return answer.has_value();
    };
    return take(profile.from, AskTextOrNone(Text(Msg::FromNode), profile.from)) &&
           take(profile.to, AskTextOrNone(Text(Msg::ToNode), profile.to)) &&
           take(profile.heightAttribute,
                AskAttribute(Text(Msg::HeightAttribute), profile.heightAttribute, pSystem,
                             EntityNode)) &&
           take(profile.depthAttribute,
                AskTextOrNone(Text(Msg::DepthAttribute), profile.depthAttribute));
}

std::optional<int> LongitudinalFamily::Run(const CRepositoryItem& item, System::CGisSystem& system,
                                           const Query::CQueryDefinition* /*pOnly*/) {
    const auto& profile = static_cast<const LongitudinalDefinition&>(item);
    const SystemNetwork network(StorageOf(system), system);
    CString fromName = profile.from;
    CString toName = profile.to;
    const auto from = FindNode(network, system, Msg::FromNode, fromName);
    const auto to = from ? FindNode(network, system, Msg::ToNode, toName) : std::nullopt;
    if (!to) {
        return std::nullopt;
    }
    const auto path = ShortestPath(network.Geometry(), *from, *to);
    if (!path) {
        Refuse(Text(Msg::NoPath, fromName, toName));
        return std::nullopt;
    }
    std::vector<Topology::CNode> nodes;
    for (const std::int32_t node : path->nodes) {
        nodes.push_back(StorageOf(system).GetNodeById(network.NodeId(node)));
    }
    acutPrintf(L"%s\n", Text(Msg::Profile, item.GetName(), system.GetSystemName(), fromName, toName,
                             CString(FormatText(L"%.2f", path->chainages.back()))));
    for (const std::string& line : ProfileLines(StationsOf(nodes, *path, profile))) {
        PrintLine(line);
    }
    return static_cast<int>(path->sections.size());
}

} // namespace Orvane::Repository
