#pragma once

#include <stdexcept>

// frmProgress was asked past its last label (100): a failure that a cache
// action counts under its error rule.
class CacheProgressOverflow : public std::runtime_error
{
public:
    CacheProgressOverflow() : std::runtime_error("progress past 100") {}
};
