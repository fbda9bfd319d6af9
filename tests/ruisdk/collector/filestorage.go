// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// Stands in for the file storage of the collector's contrib distribution, of which no package is at
// hand: the same name, the keys that docs/collector.yaml uses, and a database of the same kind for
// each component that asks for one.
package main

import (
	"context"
	"os"
	"path/filepath"
	"strings"
	"time"

	"go.etcd.io/bbolt"
	"go.opentelemetry.io/collector/component"
	"go.opentelemetry.io/collector/extension"
	"go.opentelemetry.io/collector/extension/xextension/storage"
)

type fileStorageConfig struct {
	Directory       string `mapstructure:"directory"`
	CreateDirectory bool   `mapstructure:"create_directory"`
}

func newFileStorageFactory() extension.Factory {
	return extension.NewFactory(
		component.MustNewType("file_storage"),
		func() component.Config { return &fileStorageConfig{} },
		func(_ context.Context, _ extension.Settings, config component.Config) (extension.Extension, error) {
			return &fileStorage{config: *config.(*fileStorageConfig)}, nil
		},
		component.StabilityLevelDevelopment)
}

type fileStorage struct {
	config fileStorageConfig
}

func (s *fileStorage) Start(context.Context, component.Host) error {
	if s.config.CreateDirectory {
		return os.MkdirAll(s.config.Directory, 0o750)
	}
	_, err := os.Stat(s.config.Directory)
	return err
}

func (s *fileStorage) Shutdown(context.Context) error {
	return nil
}

func (s *fileStorage) GetClient(_ context.Context, _ component.Kind, id component.ID, name string) (storage.Client, error) {
	file := strings.ReplaceAll(id.String()+"_"+name, "/", "_")
	database, err := bbolt.Open(filepath.Join(s.config.Directory, file), 0o600,
		&bbolt.Options{Timeout: time.Second})
	if err != nil {
		return nil, err
	}
	err = database.Update(func(transaction *bbolt.Tx) error {
		_, err := transaction.CreateBucketIfNotExists(bucketName)
		return err
	})
	return &fileStorageClient{database}, err
}

var bucketName = []byte("default")

type fileStorageClient struct {
	database *bbolt.DB
}

func (c *fileStorageClient) Get(ctx context.Context, key string) ([]byte, error) {
	operation := storage.GetOperation(key)
	err := c.Batch(ctx, operation)
	return operation.Value, err
}

func (c *fileStorageClient) Set(ctx context.Context, key string, value []byte) error {
	return c.Batch(ctx, storage.SetOperation(key, value))
}

func (c *fileStorageClient) Delete(ctx context.Context, key string) error {
	return c.Batch(ctx, storage.DeleteOperation(key))
}

// In one transaction, on the disk when it returns.
func (c *fileStorageClient) Batch(_ context.Context, operations ...*storage.Operation) error {
	return c.database.Update(func(transaction *bbolt.Tx) error {
		bucket := transaction.Bucket(bucketName)
		for _, operation := range operations {
			if err := apply(bucket, operation); err != nil {
				return err
			}
		}
		return nil
	})
}

func apply(bucket *bbolt.Bucket, operation *storage.Operation) error {
	key := []byte(operation.Key)
	switch operation.Type {
	case storage.Set:
		return bucket.Put(key, operation.Value)
	case storage.Delete:
		return bucket.Delete(key)
	default:
		// What the bucket returns is valid in the transaction only.
		operation.Value = append([]byte(nil), bucket.Get(key)...)
		if bucket.Get(key) == nil {
			operation.Value = nil
		}
		return nil
	}
}

func (c *fileStorageClient) Close(context.Context) error {
	return c.database.Close()
}
