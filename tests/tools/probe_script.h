#pragma once
// Runs a probe script on a fake drive and looks for the lines it must have printed, and
// reads the record files the script left.
#include <gtest/gtest.h>

#include <sstream>

#include "probe_session.h"
#include "support/fake_platform.h"

namespace qh::test {

// What the script printed; a line the probe refused fails the test.
inline std::string runScript(FakePlatform& fake, const std::string& script) {
    std::ostringstream out;
    ProbeSession session(fake.drive, fake.host, out);
    std::istringstream in(script);
    EXPECT_TRUE(session.run(in)) << session.failedLine() << "\n" << out.str();
    return out.str();
}

inline void expectLines(const std::string& text, const std::vector<std::string>& lines) {
    for (const std::string& line : lines) EXPECT_NE(text.find(line), std::string::npos) << line << "\n" << text;
}

// The bytes of a record file in the drive's data directory: bare name -> bytes.
inline std::string dataFile(FakePlatform& fake, const std::string& name) {
    return fake.bytesOf(fake.dataDirectory() + "/" + name);
}

}  // namespace qh::test
