// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// The features of simulated cameras. A feature is of one kind: a number with limits, a switch, an
// enumeration with its entries, a command, or a text. "chosen" and "changed" say how much users
// look at it and set it; without them nobody touches it. What is "odd" has no name of the standard,
// so that nobody knows what its values tell.

function integer(name, from, to, traits) {
    return { name, kind: "integer", from, to, ...traits };
}

function real(name, from, to, traits) {
    return { name, kind: "real", from, to, ...traits };
}

function entries(name, list, traits) {
    return { name, kind: "enumeration", entries: list, ...traits };
}

function toggle(name, traits) {
    return { name, kind: "switch", ...traits };
}

function command(name, traits) {
    return { name, kind: "command", ...traits };
}

function text(name, traits) {
    return { name, kind: "text", ...traits };
}

export const baseFeatures = [
    text("DeviceVendorName"), text("DeviceModelName"), text("DeviceVersion"), text("DeviceSerialNumber"),
    text("DeviceUserID", { chosen: 2, changed: 1 }), text("DeviceFirmwareVersion"),
    integer("DeviceTemperature", 28, 66, { chosen: 1 }),
    entries("DeviceScanType", ["Areascan", "Linescan"]),
    integer("SensorWidth", 1280, 4096), integer("SensorHeight", 1024, 3000),
    integer("Width", 64, 4096, { chosen: 12, changed: 8 }),
    integer("Height", 1, 3000, { chosen: 12, changed: 8 }),
    integer("OffsetX", 0, 2048, { chosen: 5, changed: 3 }),
    entries("PixelFormat", ["Mono8", "Mono12", "RGB8", "BayerRG8"], { chosen: 14, changed: 7 }),
    integer("PayloadSize", 65536, 36864000),
    entries("AcquisitionMode", ["Continuous", "SingleFrame", "MultiFrame"], { chosen: 4, changed: 2 }),
    integer("AcquisitionFrameCount", 1, 100, { chosen: 1, changed: 0.5 }),
    toggle("AcquisitionFrameRateEnable", { chosen: 5, changed: 4 }),
    real("AcquisitionFrameRate", 1, 160, { chosen: 9, changed: 6 }),
    real("ResultingFrameRate", 1, 160, { chosen: 2 }),
    real("ExposureTime", 20, 100000, { chosen: 40, changed: 45 }),
    entries("ExposureAuto", ["Off", "Once", "Continuous"], { chosen: 8, changed: 5 }),
    real("Gain", 0, 24, { chosen: 25, changed: 22 }),
    entries("GainAuto", ["Off", "Once", "Continuous"], { chosen: 5, changed: 3 }),
    real("BlackLevel", 0, 64, { chosen: 3, changed: 2 }),
    real("Gamma", 0.25, 4, { chosen: 3, changed: 2 }),
    entries("TriggerSelector", ["FrameStart", "AcquisitionStart"], { chosen: 3, changed: 1 }),
    entries("TriggerMode", ["Off", "On"], { chosen: 16, changed: 14 }),
    entries("TriggerSource", ["Software", "Line1", "Line2"], { chosen: 8, changed: 6 }),
    entries("TriggerActivation", ["RisingEdge", "FallingEdge"], { chosen: 2, changed: 1 }),
    real("TriggerDelay", 0, 1000000, { chosen: 2, changed: 1 }),
    command("TriggerSoftware", { chosen: 4, changed: 9 }),
    entries("LineSelector", ["Line1", "Line2", "Line3"], { chosen: 2, changed: 1 }),
    entries("LineMode", ["Input", "Output"], { chosen: 1, changed: 0.5 }),
    toggle("LineInverter", { chosen: 1, changed: 0.4 }), integer("LineStatusAll", 0, 15),
    entries("UserSetSelector", ["Default", "UserSet1", "UserSet2"], { chosen: 3, changed: 2 }),
    command("UserSetLoad", { chosen: 1, changed: 2 }), command("UserSetSave", { changed: 1 }),
    entries("TestPattern", ["Off", "GreyDiagonalRamp"], { chosen: 2, changed: 1 }),
    integer("GevCurrentIPAddress", 167772161, 184549375), text("GevMACAddress"),
    integer("GevSCPSPacketSize", 576, 9000, { chosen: 3, changed: 2 }),
    integer("GevSCPD", 0, 20000, { chosen: 1, changed: 1 }),
    integer("GevHeartbeatTimeout", 500, 60000, { chosen: 0.3, changed: 0.1 }),
    integer("StreamChannelCount", 1, 1), integer("TimestampLatchValue", 0, 2 ** 50),
    toggle("ChunkModeActive", { chosen: 0.5, changed: 0.3 }),
    entries("SequencerMode", ["Off", "On"], { chosen: 0.05 }), toggle("EventNotificationEnable"),
];

export const areaFeatures = [
    integer("OffsetY", 0, 1536, { chosen: 5, changed: 3 }),
    integer("BinningHorizontal", 1, 4, { chosen: 3, changed: 2 }),
    integer("BinningVertical", 1, 4, { chosen: 3, changed: 2 }),
    toggle("ReverseX", { chosen: 2, changed: 1.5 }), toggle("ReverseY", { chosen: 2, changed: 1.5 }),
    integer("AutoTargetBrightness", 0, 255, { odd: true, chosen: 1.5, changed: 1 }),
];

export const colourFeatures = [
    entries("BalanceWhiteAuto", ["Off", "Once", "Continuous"], { chosen: 9, changed: 8 }),
    entries("BalanceRatioSelector", ["Red", "Green", "Blue"], { chosen: 3, changed: 3 }),
    real("BalanceRatio", 0.5, 4, { chosen: 3, changed: 4 }),
    toggle("ColorTransformationEnable", { chosen: 0.6, changed: 0.3 }),
    real("Saturation", 0, 2, { odd: true, chosen: 1, changed: 1 }),
];

export const lineFeatures = [
    real("AcquisitionLineRate", 100, 80000, { chosen: 9, changed: 8 }),
    entries("TDIStages", ["1", "2", "4"], { odd: true, chosen: 1, changed: 0.6 }),
    integer("EncoderDivider", 1, 64, { odd: true, chosen: 3, changed: 2 }),
    entries("EncoderMode", ["FourPhase", "HighResolution"], { odd: true, chosen: 1, changed: 0.5 }),
];

export const ownFeatures = [
    integer("QmzTone", 0, 10, { odd: true, chosen: 1, changed: 0.5 }),
    text("QmzLabel", { chosen: 0.5, changed: 0.4 }),
    integer("QmzFrameCounter", 0, 2 ** 40), command("QmzFrameCounterReset", { changed: 0.3 }),
    integer("QmzFilterWheelPosition", 0, 5, { chosen: 0.02 }), toggle("QmzInvert"),
];
