#pragma once

#include "browsertwo/WordListHost.h"

// The word lists are made before Browser Two's windows, which answer their
// calls: this passes each call on once the windows exist.
class WordListHostRelay : public WordListHost
{
public:
    WordListHost* target = nullptr;

    void Pseudo(int count) override
    {
        if (target)
            target->Pseudo(count);
    }
    void WBTPassSometext(const QString& name) override
    {
        if (target)
            target->WBTPassSometext(name);
    }
    void GPysuedo(int count) override
    {
        if (target)
            target->GPysuedo(count);
    }
    void clearTopmost() override
    {
        if (target)
            target->clearTopmost();
    }
};
