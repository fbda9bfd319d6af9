// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "HostileDescription.h"

namespace HostileDescription {

namespace {

QByteArray number(const char *name, const char *address, int length, const char *sign)
{
    return QByteArray("<Integer Name=\"@\"><pValue>@Reg</pValue></Integer>"
                      "<IntReg Name=\"@Reg\"><Address>#</Address><Length>%</Length>"
                      "<AccessMode>RW</AccessMode><pPort>Device</pPort><Cachable>NoCache</Cachable>"
                      "<Sign>!</Sign><Endianess>BigEndian</Endianess></IntReg>")
        .replace('@', name)
        .replace('#', address)
        .replace('%', QByteArray::number(length))
        .replace('!', sign);
}

QByteArray command(const char *name, const char *value)
{
    return QByteArray("<Command Name=\"@\"><pValue>AcquisitionReg</pValue>"
                      "<CommandValue>#</CommandValue></Command>")
        .replace('@', name)
        .replace('#', value);
}

} // namespace

QByteArray text()
{
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?>"
           "<RegisterDescription ModelName=\"H\" VendorName=\"H\" StandardNameSpace=\"None\""
           " SchemaMajorVersion=\"1\" SchemaMinorVersion=\"0\" SchemaSubMinorVersion=\"1\""
           " MajorVersion=\"1\" MinorVersion=\"0\" SubMinorVersion=\"0\" ToolTip=\"\""
           " ProductGuid=\"0\" VersionGuid=\"0\""
           " xmlns=\"http://www.genicam.org/GenApi/Version_1_0\">"
           "<Category Name=\"Root\"><pFeature>ImageFormatControl</pFeature></Category>"
           "<Category Name=\"ImageFormatControl\"><pFeature>Width</pFeature>"
           "<pFeature>Height</pFeature><pFeature>PixelFormat</pFeature>"
           "<pFeature>PayloadSize</pFeature><pFeature>AcquisitionStart</pFeature>"
           "<pFeature>AcquisitionStop</pFeature></Category>"
           + number("Width", "0xb000", 4, "Unsigned") + number("Height", "0xb004", 4, "Unsigned")
           + number("PayloadSize", "0xb008", 8, "Signed")
           + "<Enumeration Name=\"PixelFormat\"><EnumEntry Name=\"Mono8\">"
             "<Value>0x01080001</Value></EnumEntry><pValue>PixelFormatReg</pValue></Enumeration>"
           + number("PixelFormatNumber", "0xb014", 4, "Unsigned")
                 .replace("PixelFormatNumberReg", "PixelFormatReg")
           + "<Enumeration Name=\"GevGVSPExtendedIDMode\"><EnumEntry Name=\"Off\"><Value>0</Value>"
             "</EnumEntry><EnumEntry Name=\"On\"><Value>1</Value></EnumEntry>"
             "<pValue>ExtendedIdsReg</pValue></Enumeration>"
           + number("ExtendedIds", "0xb018", 4, "Unsigned")
           + "<IntReg Name=\"AcquisitionReg\"><Address>0xb010</Address><Length>4</Length>"
             "<AccessMode>RW</AccessMode><pPort>Device</pPort><Sign>Unsigned</Sign>"
             "<Endianess>BigEndian</Endianess></IntReg>"
           + command("AcquisitionStart", "1") + command("AcquisitionStop", "0")
           + "<Port Name=\"Device\"></Port></RegisterDescription>";
}

} // namespace HostileDescription
