#include <tvpolicy/checks/File.h>

#include <fstream>
#include <iterator>

#include "checks/FileWalker.h"

using tvpolicy::fs::FileWalker;

namespace {

class FirstMatch : public FileWalker::Visitor {
public:
    explicit FirstMatch(std::filesystem::path& found) : found_(found) {}
    bool found(const std::string& path) override
    {
        found_ = path;
        return true;
    }

private:
    std::filesystem::path& found_;
};

class EveryMatch : public FileWalker::Visitor {
public:
    explicit EveryMatch(std::list<std::filesystem::path>& found) : found_(found) {}
    bool found(const std::string& path) override
    {
        found_.emplace_back(path);
        return false;
    }

private:
    std::list<std::filesystem::path>& found_;
};

}  // namespace

const std::list<std::string>& fixedDisks()
{
    static const std::list<std::string> disks{"/"};
    return disks;
}

bool find_file(std::filesystem::path dir, std::string name, std::filesystem::path& found)
{
    FirstMatch visitor(found);
    return FileWalker::walk(dir.string(), name, visitor);
}

void find_files(std::filesystem::path dir, std::string name, std::list<std::filesystem::path>& found)
{
    EveryMatch visitor(found);
    FileWalker::walk(dir.string(), name, visitor);
}

bool findInFile(std::string path, std::string text)
{
    std::ifstream file(path);
    std::string content;
    for (std::istream_iterator<std::string> word(file), end; word != end; ++word) {
        content += ' ';
        content += *word;
    }
    return content.find(text) != std::string::npos;
}
