#pragma once

/** Starts the trace facility while the library is loaded; there is one object of it. */
class corvaneguiDbg // NOLINT(readability-identifier-naming): the name is fixed
{
public:
    corvaneguiDbg();
};
