// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// An OpenTelemetry Collector with the components that docs/collector.yaml names, and the one that
// prints what arrives. All but the file storage come from the collector's own library.
package main

import (
	"log"

	"go.opentelemetry.io/collector/component"
	"go.opentelemetry.io/collector/confmap"
	"go.opentelemetry.io/collector/confmap/provider/envprovider"
	"go.opentelemetry.io/collector/confmap/provider/fileprovider"
	"go.opentelemetry.io/collector/exporter"
	"go.opentelemetry.io/collector/exporter/debugexporter"
	"go.opentelemetry.io/collector/exporter/otlphttpexporter"
	"go.opentelemetry.io/collector/extension"
	"go.opentelemetry.io/collector/otelcol"
	"go.opentelemetry.io/collector/receiver"
	"go.opentelemetry.io/collector/receiver/otlpreceiver"
	"go.opentelemetry.io/collector/service/telemetry/otelconftelemetry"
)

// Of the package, set by the linker.
var version = "unknown"

func components() (factories otelcol.Factories, err error) {
	factories.Telemetry = otelconftelemetry.NewFactory()
	factories.Extensions, err = otelcol.MakeFactoryMap[extension.Factory](newFileStorageFactory())
	if err != nil {
		return
	}
	factories.Receivers, err = otelcol.MakeFactoryMap[receiver.Factory](otlpreceiver.NewFactory())
	if err != nil {
		return
	}
	factories.Exporters, err = otelcol.MakeFactoryMap[exporter.Factory](
		debugexporter.NewFactory(), otlphttpexporter.NewFactory())
	return
}

func main() {
	settings := otelcol.CollectorSettings{
		BuildInfo: component.BuildInfo{Command: "otelcol", Version: version},
		Factories: components,
		ConfigProviderSettings: otelcol.ConfigProviderSettings{
			ResolverSettings: confmap.ResolverSettings{
				ProviderFactories: []confmap.ProviderFactory{
					envprovider.NewFactory(), fileprovider.NewFactory(),
				},
			},
		},
	}
	if err := otelcol.NewCommand(settings).Execute(); err != nil {
		log.Fatal(err)
	}
}
