# SPDX-FileCopyrightText: 2026 Ostrand
# SPDX-License-Identifier: MIT
"""Checks the configuration of a collector without one: keys, references, where it listens.

tools/check-collector.sh runs it in one.
"""
import copy
import sys
import unittest

import yaml

# The keys that the documentation of each component names, of those that one needs here.
KEYS = {
    "receivers/otlp": {"protocols"},
    "exporters/otlphttp": {"endpoint", "headers", "tls", "timeout", "compression",
                           "sending_queue", "retry_on_failure"},
    "extensions/file_storage": {"directory", "create_directory", "timeout", "compaction", "fsync"},
}
QUEUE_KEYS = {"enabled", "num_consumers", "queue_size", "storage"}
RETRY_KEYS = {"enabled", "initial_interval", "max_interval", "max_elapsed_time", "multiplier"}
SECTIONS = {"extensions", "receivers", "processors", "exporters", "service"}


def problems_of_keys(where, given, known):
    return [f"{where}: unknown key {key}" for key in given if key not in known]


def problems(config):
    found = problems_of_keys("the file", config, SECTIONS)
    for section in ("extensions", "receivers", "exporters"):
        for name, values in config.get(section, {}).items():
            kind = f"{section}/{name.split('/')[0]}"
            found += problems_of_keys(name, values or {}, KEYS.get(kind, set()))
    for name, values in config["exporters"].items():
        queue = values.get("sending_queue", {})
        found += problems_of_keys(f"{name} queue", queue, QUEUE_KEYS)
        found += problems_of_keys(f"{name} retry", values.get("retry_on_failure", {}), RETRY_KEYS)
        if "storage" in queue and queue["storage"] not in config["service"]["extensions"]:
            found.append(f"{name}: the storage {queue['storage']} is not in service")
    found += [f"extension {name} is not declared" for name in config["service"]["extensions"]
              if name not in config["extensions"]]
    for pipeline, parts in config["service"]["pipelines"].items():
        for section, names in parts.items():
            found += [f"{pipeline}: {name} is not declared" for name in names
                      if name not in config.get(section, {})]
    return found


class CollectorConfiguration(unittest.TestCase):
    def setUp(self):
        with open(PATH, encoding="utf-8") as file:
            self.config = yaml.safe_load(file)

    def test_has_no_problems(self):
        self.assertEqual(problems(self.config), [])

    def test_takes_logs_over_http_on_the_loopback(self):
        http = self.config["receivers"]["otlp"]["protocols"]["http"]
        self.assertEqual(http["endpoint"], "127.0.0.1:4318")
        self.assertEqual(self.config["service"]["pipelines"]["logs"]["receivers"], ["otlp"])

    def test_keeps_on_disk_what_cannot_be_passed_on_and_never_gives_up(self):
        exporter = self.config["exporters"]["otlphttp/next"]
        self.assertEqual(exporter["sending_queue"]["storage"], "file_storage/queue")
        self.assertEqual(exporter["retry_on_failure"]["max_elapsed_time"], "0s")

    def test_holds_nothing_in_memory_before_the_queue(self):
        self.assertNotIn("processors", self.config["service"]["pipelines"]["logs"])

    def test_mistakes_are_found(self):
        for change in (lambda c: c["service"]["extensions"].clear(),
                       lambda c: c["service"]["pipelines"]["logs"]["exporters"].append("kafka"),
                       lambda c: c["exporters"]["otlphttp/next"].update(url="x"),
                       lambda c: c["exporters"]["otlphttp/next"]["sending_queue"].update(size=1),
                       lambda c: c["extensions"].clear(),
                       lambda c: c.update(exporter={})):
            mutant = copy.deepcopy(self.config)
            change(mutant)
            self.assertNotEqual(problems(mutant), [])


PATH = sys.argv.pop()
if __name__ == "__main__":
    unittest.main()
