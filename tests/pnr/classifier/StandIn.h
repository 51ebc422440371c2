// SPDX-License-Identifier: MIT
#pragma once

/// \file
/// The stand-in for the closed library: a classifier that a test fills, and a record of the calls.

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#define RSC_STAND_IN_STATE __attribute__((visibility("default")))

namespace standin {

struct Object
{
    int code;
    int kind;
    int layer;
    std::string name;
    std::string key;
};

struct Semantic
{
    int code;
    int kind;
    std::string name;
    int linkedList = 0;
    std::vector<std::pair<int, std::string>> values = {};
};

/// What the stand-in holds. The handles need more than 32 bits.
struct State
{
    std::uintptr_t rsc = 0x111111111;
    std::uintptr_t map = 0x222222222;
    std::uintptr_t bitmap = 0x333333333;
    int painted = 1;
    bool namesAreNull = false;
    std::vector<std::string> layers;
    std::vector<Object> objects;
    std::vector<Semantic> semantics;

    /// Runs inside each call, with the function's name.
    std::function<void(const std::string&)> onCall;

    /// One line for each call, and for the loading and freeing of the stand-in.
    std::string calls;
};

/// The one state of the process.
RSC_STAND_IN_STATE State& Current();

} // namespace standin
