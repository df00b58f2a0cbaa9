// All workspace commands in one place, found by id, by menu id, and by group.
#pragma once

#include "workspacecore/commands/WsCommand.h"

namespace Orvane::Workspace {

/// The live registry belongs to CWsCommandManager. Used on the main thread only.
class WORKSPACE_API CWsCommandRegistry {
public:
    using CommandPtr = boost::shared_ptr<CWsCommand>;
    using CommandVector = std::vector<CommandPtr>;
    using CommandMapById = std::map<CString, CommandPtr, CStringLess>;

    CWsCommandRegistry() = default;
    /// Copies share the command records. The count of menu ids is not copied.
    CWsCommandRegistry(const CWsCommandRegistry& other);
    CWsCommandRegistry& operator=(const CWsCommandRegistry& other);
    virtual ~CWsCommandRegistry() = default;

    /// Takes a command and gives it the next menu id. 0, and no change at all, if there is
    /// a command of that id; case counts, and an empty id is an id like any other. Null is passed
    /// over.
    int AddWsCommand(CommandPtr command);
    /// Takes the record out of the vector, by pointer, and its id out of the look-up by id.
    /// By menu id and by group it is still found, so that menus on the screen keep working.
    void RemoveWsCommand(const CommandPtr& command);
    /// Empties the vector and the look-up by id. By menu id and by group the commands are
    /// still found, and this registry gives no menu id twice.
    void Clear();

    /// Looks the id up as it stands, then once more without its last character.
    CommandPtr GetWsCommandById(const wchar_t* id) const;
    CommandPtr GetWsCommandByMenuId(unsigned int menuCmdId) const;
    /// Commands of a group that apply to a kind of item, in order of adding.
    /// \param topologyType -1 stands for any topology
    /// \param repositoryTag null or empty: any; "0": every command that has a tag
    CommandVector GetWsCommandByGroup(enmCommandGroup group, enmTopologyType topologyType,
                                      int topologyFunction, enmWSTreeItemType itemType,
                                      const wchar_t* repositoryTag) const;

    CommandVector* GetWsCommandVector() { return &m_wsCommandVector; }
    const CommandVector* GetWsCommandVector() const { return &m_wsCommandVector; }
    CommandMapById* GetWsCommandMapById() { return &m_wsCommandMapById; }

    /// Fills the target with copies of the records; its count of menu ids stays.
    void MakeDeepCopy(CWsCommandRegistry& target) const;

    CString GetXML() const;
    /// Empties the registry and reads commands from a text. They have no executor and no
    /// topology data. 0 if the text has no registry element.
    int ParseXML(const wchar_t* xml);
    /// 0, and no change, if the file cannot be read or is not well formed.
    int Load(const wchar_t* path);
    /// 0, and nothing written, if the text would not be well formed.
    int Save(const wchar_t* path) const;
    /// There is no storage in a drawing yet: both show "Not implemented" and give 0, and
    /// the first one empties the registry.
    int LoadFromDictionary();
    int SaveToDictionary() const;

private:
    unsigned int GetNextCmdId() { return ++m_nLastCmdId; }

    CommandVector m_wsCommandVector;
    CommandMapById m_wsCommandMapById;
    std::map<unsigned int, CommandPtr> m_wsCommandMapByMenuId;
    std::multimap<enmCommandGroup, CommandPtr> m_wsCommandMapByGroup;
    unsigned int m_nLastCmdId = 0;
};

} // namespace Orvane::Workspace
