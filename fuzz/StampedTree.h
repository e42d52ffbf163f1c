#pragma once

#include "fuzz/Home.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <vector>

/// Folders and files that every input is to find alike. Only what has been touched is made anew:
/// each is dated back when it is made, and its date and inode tell whether it still is as it was.
class StampedTree
{
public:
    enum class Keep {
        Nothing, ///< ours to change
        Itself,  ///< has to stay; in a folder anything may happen
        Entries, ///< of a folder: nothing may come or go either
    };

    /// Folders before what is in them.
    void addFolder(const std::string &path, Keep keep) { m_nodes[path] = {true, {}, keep, {}}; }
    void addFile(const std::string &path, const std::string &contents, Keep keep)
    {
        m_nodes[path] = {false, contents, keep, {}};
    }

    /// Brings everything back.
    void restore()
    {
        std::set<std::string> touched;
        for (auto &[path, node] : m_nodes) {
            if (isUntouched(path, node))
                continue;
            if (node.isFolder)
                restoreFolder(path);
            else
                restoreFile(path, node.contents);
            touched.insert(path);
            touched.insert(path.substr(0, path.rfind('/'))); // by this itself
        }
        for (const std::string &path : touched) {
            if (const auto node = m_nodes.find(path); node != m_nodes.end())
                setStamp(path, node->second);
        }
    }

    /// Promises that what has to stay is there, as it was.
    void check() const
    {
        for (const auto &[path, node] : m_nodes) {
            if (node.keep == Keep::Nothing || isUntouched(path, node))
                continue;
            const Stamp stamp = stampOf(path);
            promise(node.isFolder ? S_ISDIR(stamp.mode)
                                  : S_ISREG(stamp.mode) && contentsOf(path) == node.contents,
                    "what is no file of the system's own stays");
            if (node.keep == Keep::Entries)
                promise(unknownIn(path).empty(), "nothing comes where the system has no files");
        }
    }

private:
    struct Stamp
    {
        ino_t inode = 0;
        mode_t mode = 0;
        off_t size = 0;
        time_t date = 0;
        bool operator==(const Stamp &) const = default;
    };

    struct Node
    {
        bool isFolder = false;
        std::string contents;
        Keep keep = Keep::Nothing;
        Stamp stamp;
    };

    // The year 2001. Whatever changes a file or a folder's entries gives it the present.
    static constexpr time_t longAgo = 1'000'000'000;

    /// Of nothing where nothing is.
    static Stamp stampOf(const std::string &path)
    {
        struct stat status = {};
        if (::lstat(path.c_str(), &status) != 0)
            return {};
        return {status.st_ino, status.st_mode, status.st_size, status.st_mtim.tv_sec};
    }

    static bool isUntouched(const std::string &path, const Node &node)
    {
        return node.stamp.inode != 0 && stampOf(path) == node.stamp;
    }

    static void setStamp(const std::string &path, Node &node)
    {
        const timespec dates[] = {{longAgo, 0}, {longAgo, 0}};
        promise(::utimensat(AT_FDCWD, path.c_str(), dates, AT_SYMLINK_NOFOLLOW) == 0,
                "a file can be dated");
        node.stamp = stampOf(path);
    }

    static std::string contentsOf(const std::string &path)
    {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    std::vector<std::string> unknownIn(const std::string &folder) const
    {
        std::vector<std::string> unknown;
        for (const auto &entry : std::filesystem::directory_iterator(folder)) {
            if (!m_nodes.contains(entry.path().native()))
                unknown.push_back(entry.path().native());
        }
        return unknown;
    }

    void restoreFolder(const std::string &path) const
    {
        const mode_t mode = stampOf(path).mode;
        if (mode != 0 && !S_ISDIR(mode))
            std::filesystem::remove(path);
        std::filesystem::create_directory(path);
        std::filesystem::permissions(path, std::filesystem::perms(0755));
        for (const std::string &entry : unknownIn(path))
            std::filesystem::remove_all(entry);
    }

    static void restoreFile(const std::string &path, const std::string &contents)
    {
        std::filesystem::remove_all(path);
        std::ofstream file(path, std::ios::binary);
        file << contents;
        promise(file.flush().good(), "a file can be made");
    }

    std::map<std::string, Node> m_nodes; // by path, so folders come before what is in them
};
