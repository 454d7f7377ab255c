// probe DRIVE [HOST]: reads actions from standard input, one a line, and prints what the
// main window shows at each "print". See the README for the actions.
#include <filesystem>
#include <iostream>

#include "probe_network.h"
#include "probe_session.h"

int main(int argc, char** argv) {
    if (argc < 2 || argc > 3) {
        std::cerr << "usage: probe DRIVE [HOST]\n";
        return 2;
    }
    const std::string host = argc == 3 ? argv[2] : std::string(argv[1]) + "/../probe-host";
    try {
        std::filesystem::create_directories(host);
        const std::string drive = argv[1];
        const std::unique_ptr<qh::ProbeNetwork> network = qh::MakeProbeNetwork(argc, argv);
        qh::ProbeSession session(drive, host, std::cout, network->feeds());
        if (!session.run(std::cin)) {
            std::cerr << "probe: line " << session.failedLineNumber() << " not understood: " << session.failedLine()
                      << "\n";
            return 2;
        }
    } catch (const std::exception& failure) {
        std::cerr << "probe: the planner stopped: " << failure.what() << "\n";
        return 1;
    }
    return 0;
}
