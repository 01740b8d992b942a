#pragma once

#include <gtest/gtest.h>

#include <string>

namespace ls::test {

/// Names each test of a table after its row's member `name`.
struct RowName
{
    template <typename Row>
    std::string operator()(const testing::TestParamInfo<Row>& info) const
    {
        return info.param.name;
    }
};

} // namespace ls::test
