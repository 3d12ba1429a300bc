// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <cstddef>
#include <cstdint>

#ifdef _WIN32
#define NLE_CL_CALL __stdcall
#else
#define NLE_CL_CALL
#endif

/// The part of the C interface of OpenCL 1.2 that the engine uses, by the Khronos specification; a
/// system without its headers builds the engine as well.
namespace nle {

using ClStatus = std::int32_t;
using ClCount = std::uint32_t;
using ClFlags = std::uint64_t;
using ClPlatform = struct ClPlatformTag*;
using ClDevice = struct ClDeviceTag*;
using ClContext = struct ClContextTag*;
using ClQueue = struct ClQueueTag*;
using ClBuffer = struct ClBufferTag*;
using ClEvent = struct ClEventTag*;

enum ClStatusCode : ClStatus
{
    ClSuccess = 0,
    ClMemObjectAllocationFailure = -4,
    ClOutOfResources = -5,
    ClOutOfHostMemory = -6,
    ClInvalidBufferSize = -61
};

enum ClDeviceInfo : ClCount
{
    ClDeviceType = 0x1000,
    ClDeviceAvailable = 0x1027,
    ClDeviceName = 0x102B,
    ClDeviceVersion = 0x102F,
    ClDeviceHostUnifiedMemory = 0x1035
};

constexpr ClFlags kClDeviceTypeCpu = 1 << 1;
constexpr ClFlags kClDeviceTypeGpu = 1 << 2;
constexpr ClFlags kClDeviceTypeAll = 0xFFFFFFFF;
constexpr std::intptr_t kClContextPlatform = 0x1084;
constexpr ClFlags kClMemReadWrite = 1 << 0;
constexpr ClFlags kClMemAllocHostPtr = 1 << 4;
constexpr ClFlags kClMapRead = 1 << 0;
constexpr ClFlags kClMapWrite = 1 << 1;
constexpr ClFlags kClMapWriteInvalidate = 1 << 2;

using ClContextNotify = void(NLE_CL_CALL*)(const char* error, const void* details, std::size_t size,
                                           void* userData);

/// Its functions, under the names of the interface without their "cl".
struct ClFunctions
{
    ClStatus(NLE_CL_CALL* getPlatformIds)(ClCount, ClPlatform*, ClCount*) = nullptr;
    ClStatus(NLE_CL_CALL* getDeviceIds)(ClPlatform, ClFlags, ClCount, ClDevice*,
                                        ClCount*) = nullptr;
    ClStatus(NLE_CL_CALL* getDeviceInfo)(ClDevice, ClCount, std::size_t, void*,
                                         std::size_t*) = nullptr;
    ClContext(NLE_CL_CALL* createContext)(const std::intptr_t*, ClCount, const ClDevice*,
                                          ClContextNotify, void*, ClStatus*) = nullptr;
    ClStatus(NLE_CL_CALL* releaseContext)(ClContext) = nullptr;
    ClQueue(NLE_CL_CALL* createCommandQueue)(ClContext, ClDevice, ClFlags, ClStatus*) = nullptr;
    ClStatus(NLE_CL_CALL* releaseCommandQueue)(ClQueue) = nullptr;
    ClBuffer(NLE_CL_CALL* createBuffer)(ClContext, ClFlags, std::size_t, void*,
                                        ClStatus*) = nullptr;
    ClStatus(NLE_CL_CALL* releaseMemObject)(ClBuffer) = nullptr;
    void*(NLE_CL_CALL* enqueueMapBuffer)(ClQueue, ClBuffer, ClCount, ClFlags, std::size_t,
                                         std::size_t, ClCount, const ClEvent*, ClEvent*,
                                         ClStatus*) = nullptr;
    ClStatus(NLE_CL_CALL* enqueueUnmapMemObject)(ClQueue, ClBuffer, void*, ClCount, const ClEvent*,
                                                 ClEvent*) = nullptr;
    ClStatus(NLE_CL_CALL* waitForEvents)(ClCount, const ClEvent*) = nullptr;
    ClStatus(NLE_CL_CALL* releaseEvent)(ClEvent) = nullptr;
};

} // namespace nle
