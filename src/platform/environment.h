#pragma once
#include <string>

namespace qh {

// The environment the drive platform sets up (U3_DEVICE_PATH, U3_DEVICE_EXEC_PATH,
// U3_DEVICE_DOCUMENT_PATH, U3_HOST_EXEC_PATH). An unset variable reads as empty.
class Environment {
public:
    virtual ~Environment() = default;
    virtual std::string get(const std::string& name) const = 0;
};

}  // namespace qh
