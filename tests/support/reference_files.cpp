#include "support/reference_files.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace qh::test {

std::string ReadBytes(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << in.rdbuf();
    return bytes.str();
}

void WriteBytes(const std::string& path, const std::string& bytes) {
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
}

std::string CommandOutput(const std::string& command) {
    std::string out;
    if (FILE* pipe = ::popen(command.c_str(), "r")) {
        char buffer[4096];
        for (std::size_t n; (n = std::fread(buffer, 1, sizeof buffer, pipe)) > 0;) out.append(buffer, n);
        ::pclose(pipe);
    }
    return out;
}

std::string DiffWithFile(const std::string& path, const std::string& actual) {
    if (std::getenv("QH_WRITE_REFERENCES")) WriteBytes(path, actual);
    if (ReadBytes(path) == actual) return {};
    const std::string actualPath =
        (std::filesystem::temp_directory_path() /
         ("actual-" + std::to_string(::getpid()) + "-" + std::filesystem::path(path).filename().string()))
            .string();
    WriteBytes(actualPath, actual);
    const std::string diff = CommandOutput("diff -u '" + path + "' '" + actualPath + "' 2>&1");
    std::filesystem::remove(actualPath);
    return diff.empty() ? "differs from " + path : diff;
}

}  // namespace qh::test
