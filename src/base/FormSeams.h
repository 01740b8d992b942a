#pragma once

namespace ls {

class DdeServer;
class PrinterDevice;
class Registry;
class Volumes;

/// The parts of the running system that only the forms need.
struct FormSeams
{
    Volumes& volumes;
    DdeServer& ddeServer;
    Registry& registry;
    PrinterDevice& printer;
};

} // namespace ls
