// All workspace commands, searchable by id, menu id and group.
#pragma once

#include "workspacecore/commands/WsCommand.h"

namespace Orvane::Workspace {

/// The live registry is owned by CWsCommandManager. Main thread only.
class WORKSPACE_API CWsCommandRegistry {
public:
    using CommandPtr = boost::shared_ptr<CWsCommand>;
    using CommandVector = std::vector<CommandPtr>;
    using CommandMapById = std::map<CString, CommandPtr, CStringLess>;

    CWsCommandRegistry() = default;
    /// Copies share the command records; the menu id counter is not copied.
    CWsCommandRegistry(const CWsCommandRegistry& other);
    CWsCommandRegistry& operator=(const CWsCommandRegistry& other);
    virtual ~CWsCommandRegistry() = default;

    /// Adds a command and assigns the next menu id. Returns 0 and changes nothing if the id is
    /// taken; ids are case-sensitive, and an empty id counts like any other. Null is ignored.
    int AddWsCommand(CommandPtr command);
    /// Removes the record from the vector, by pointer, and its id from the look-up by id. It can
    /// still be found by menu id and by group, so open menus keep working.
    void RemoveWsCommand(const CommandPtr& command);
    /// Clears the vector and the look-up by id. Commands can still be found by menu id and by
    /// group, and menu ids are never reused.
    void Clear();

    /// Tries the id as given, then without its last character.
    CommandPtr GetWsCommandById(const wchar_t* id) const;
    CommandPtr GetWsCommandByMenuId(unsigned int menuCmdId) const;
    /// Commands of a group that apply to a type of item, in order of registration.
    /// \param topologyType -1 for any topology
    /// \param repositoryTag null or empty: any; "0": every command that has a tag
    CommandVector GetWsCommandByGroup(enmCommandGroup group, enmTopologyType topologyType,
                                      int topologyFunction, enmWSTreeItemType itemType,
                                      const wchar_t* repositoryTag) const;

    CommandVector* GetWsCommandVector() { return &m_wsCommandVector; }
    const CommandVector* GetWsCommandVector() const { return &m_wsCommandVector; }
    CommandMapById* GetWsCommandMapById() { return &m_wsCommandMapById; }

    /// Copies the records into the target, whose menu id counter stays.
    void MakeDeepCopy(CWsCommandRegistry& target) const;

    CString GetXML() const;
    /// Clears the registry and parses commands, which have no executor and no topology data.
    /// Returns 0 if the text has no registry element.
    int ParseXML(const wchar_t* xml);
    /// Returns 0 and changes nothing if the file cannot be read or is not well formed.
    int Load(const wchar_t* path);
    /// Returns 0 and writes nothing if the text would not be well formed.
    int Save(const wchar_t* path) const;
    /// Storage in a drawing is not implemented: both print "Not implemented" and return 0, and
    /// the first one clears the registry.
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
