-- SPDX-FileCopyrightText: 2026 Ostrand
-- SPDX-License-Identifier: MIT
--
-- Features of the standard feature naming convention whose values say nothing about who uses a
-- camera. A value of any other feature is in no answer. What is free text, a serial number, an
-- address, an identifier, a file, a key or a time of a clock must not be added.
CREATE OR REPLACE VIEW feature_kinds AS
SELECT arrayJoin(features) AS feature, kind
FROM values('kind String, features Array(String)',
    ('number', [
        'AcquisitionBurstFrameCount', 'AcquisitionFrameCount', 'AcquisitionFramePeriod',
        'AcquisitionFrameRate', 'AcquisitionLineRate',
        'BalanceRatio', 'BinningHorizontal', 'BinningVertical', 'BlackLevel',
        'ColorTransformationValue', 'CounterDuration', 'CounterValue', 'DecimationHorizontal',
        'DecimationVertical', 'DeviceLinkThroughputLimit', 'DeviceTemperature', 'ExposureTime',
        'Gain', 'GainRaw', 'Gamma', 'GevHeartbeatTimeout',
        'GevSCPD', 'GevSCPSPacketSize', 'Height', 'HueValue',
        'LUTIndex', 'LUTValue', 'LightBrightness', 'LineDebouncerTime', 'OffsetX', 'OffsetY',
        'SaturationValue', 'SequencerPathSelector',
        'SequencerSetNext', 'SequencerSetSelector', 'TimerDelay',
        'TimerDuration', 'TriggerDelay', 'TriggerDivider', 'TriggerMultiplier', 'Width'
    ]),
    ('choice', [
        'AcquisitionMode', 'AcquisitionStatusSelector', 'BalanceRatioSelector',
        'BalanceWhiteAuto', 'BinningHorizontalMode', 'BinningSelector', 'BinningVerticalMode',
        'BlackLevelAuto', 'BlackLevelSelector', 'ChunkSelector', 'ColorTransformationSelector',
        'CounterEventActivation', 'CounterEventSource', 'CounterResetSource', 'CounterSelector',
        'CounterTriggerSource', 'DecimationHorizontalMode', 'DecimationVerticalMode',
        'DeviceLinkThroughputLimitMode', 'DeviceScanType', 'DeviceTemperatureSelector',
        'EventNotification', 'EventSelector', 'ExposureAuto', 'ExposureMode', 'ExposureTimeMode',
        'ExposureTimeSelector', 'GainAuto', 'GainSelector', 'LUTSelector',
        'LineFormat', 'LineMode', 'LineSelector', 'LineSource', 'PixelColorFilter', 'PixelFormat',
        'PixelSize', 'RegionDestination', 'RegionMode', 'RegionSelector', 'SensorReadoutMode',
        'SensorShutterMode', 'SensorTaps', 'SequencerConfigurationMode', 'SequencerMode',
        'SequencerTriggerActivation', 'SequencerTriggerSource', 'TestPattern',
        'TestPatternGeneratorSelector', 'TimerSelector', 'TimerTriggerActivation',
        'TimerTriggerSource', 'TriggerActivation', 'TriggerMode', 'TriggerOverlap',
        'TriggerSelector', 'TriggerSource', 'UserOutputSelector', 'UserSetDefault',
        'UserSetSelector'
    ]),
    ('switch', [
        'AcquisitionFrameRateEnable', 'ChunkEnable', 'ChunkModeActive', 'ColorTransformationEnable',
        'GammaEnable', 'LUTEnable', 'LineInverter', 'LineStatus', 'ReverseX', 'ReverseY',
        'SequenceEnable', 'UserOutputValue'
    ])
);
