#pragma once

/// As long as it lives, one call of calloc in this process finds no memory: the `ordinal`th
/// since its making, counted from 1.
class FailingCalloc {
public:
    explicit FailingCalloc(int ordinal);
    ~FailingCalloc();
    FailingCalloc(const FailingCalloc&) = delete;
    FailingCalloc& operator=(const FailingCalloc&) = delete;
};
