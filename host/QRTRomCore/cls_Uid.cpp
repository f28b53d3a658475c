#include "cls_Uid.h"

#include <pthread.h>
#include <random>

std::uint64_t cls_Uid::processNumber = 0;
std::uint64_t cls_Uid::nextSerial = 0;

namespace
{

void PutLittleEndian(unsigned char* bytes, std::uint64_t number)
{
    for (int i = 0; i < 8; ++i)
        bytes[i] = static_cast<unsigned char>(number >> (8 * i));
}

std::uint64_t GetLittleEndian(const unsigned char* bytes)
{
    std::uint64_t number = 0;
    for (int i = 0; i < 8; ++i)
        number |= static_cast<std::uint64_t>(bytes[i]) << (8 * i);
    return number;
}

} // namespace

void cls_Uid::ToBytes(unsigned char* bytes) const
{
    PutLittleEndian(bytes, process);
    PutLittleEndian(bytes + 8, serial);
}

cls_Uid cls_Uid::FromBytes(const unsigned char* bytes)
{
    cls_Uid uid;
    uid.process = GetLittleEndian(bytes);
    uid.serial = GetLittleEndian(bytes + 8);
    return uid;
}

void cls_Uid::StartProcess()
{
    // A forked child inherits the counter, so it must draw a number of its own.
    static const int forkHandler = pthread_atfork(nullptr, nullptr, [] { nextSerial = 0; });
    static_cast<void>(forkHandler);

    std::random_device source;
    do
    {
        processNumber = (static_cast<std::uint64_t>(source()) << 32) | source();
    }
    while (processNumber == 0);
    nextSerial = 1;
}
