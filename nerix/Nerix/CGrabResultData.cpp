// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <Nerix/CGrabResultData.h>

#include <utility>

namespace Nerix {

CGrabResultData::CGrabResultData(CImage image)
    : m_image(std::move(image))
    , m_succeeded(true)
{}

CGrabResultData::CGrabResultData(std::uint32_t errorCode, GenICam::gcstring errorDescription)
    : m_errorDescription(std::move(errorDescription))
    , m_errorCode(errorCode)
{}

bool CGrabResultData::GrabSucceeded() const
{
    return m_succeeded;
}

std::uint32_t CGrabResultData::GetErrorCode() const
{
    return m_errorCode;
}

GenICam::gcstring CGrabResultData::GetErrorDescription() const
{
    return m_errorDescription;
}

const CImage &CGrabResultData::image() const
{
    return m_image;
}

} // namespace Nerix
