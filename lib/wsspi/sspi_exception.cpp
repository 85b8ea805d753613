#include "lib/wsspi/sspi_exception.h"

#include <algorithm>

namespace wsspi {

namespace {

constexpr std::int32_t kHighestCode = 16;

}  // namespace

SspiException::SspiException(const wchar_t* atFile, std::uint32_t atLine, std::int32_t errorCode,
                             std::uint32_t errorDetail)
    : file(atFile), line(atLine), code(std::min(errorCode, kHighestCode)), detail(errorDetail) {}

}  // namespace wsspi
