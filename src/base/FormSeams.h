#pragma once

namespace ls {

class DdeServer;
class PrinterDevice;
class Registry;
class Volumes;

/// What only the forms need from the running system.
struct FormSeams
{
    Volumes& volumes;
    DdeServer& ddeServer;
    Registry& registry;
    PrinterDevice& printer;
};

} // namespace ls
