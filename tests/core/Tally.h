// Counts the overrides of a host's class that were reached.
#pragma once

#include <gtest/gtest.h>

/// The overrides of one object that were reached, by slot, and how many objects were destroyed.
class Tally {
public:
    template <class Result>
    Result Reached(int slot) {
        ++m_calls[slot];
        return Result();
    }
    /// Whether every slot from `first` up to but not including `last`, but for the destructor's, was reached
    /// once.
    void ExpectAll(int first, int last, int destructor = -1) const {
        for (int slot = first; slot < last; ++slot)
            EXPECT_EQ(m_calls[slot], slot == destructor ? 0 : 1) << "slot " << slot;
    }
    /// Whether deleting `object` runs the destructor of the host's class, once.
    template <class Base>
    static void ExpectDestroyed(Base* object) {
        s_destroyed = 0;
        delete object;
        EXPECT_EQ(s_destroyed, 1);
    }
    static inline int s_destroyed = 0;

private:
    int m_calls[40] = {};
};

/// Overrides a virtual member and counts it under its slot.
#define SLOT(number, result, member)           \
    result member override {                   \
        return Tally::Reached<result>(number); \
    }
