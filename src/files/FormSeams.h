#pragma once

namespace ls {

class DdeServer;
class Registry;
class Volumes;

/// What only the forms need from the running system.
struct FormSeams
{
    Volumes& volumes;
    DdeServer& ddeServer;
    Registry& registry;
};

} // namespace ls
