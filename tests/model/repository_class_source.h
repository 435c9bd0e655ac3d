// The class repository as a source of class definitions for the Pegasus face, installed for its
// lifetime: what an agent does that builds Pegasus instances over our own class definitions.
#pragma once

#include <memory>

#include "schema/repository.h"

class RepositoryClassSource {
 public:
  // `repository` must outlive this object.
  explicit RepositoryClassSource(const cim::schema::Repository& repository);
  ~RepositoryClassSource();
  RepositoryClassSource(const RepositoryClassSource&) = delete;
  RepositoryClassSource& operator=(const RepositoryClassSource&) = delete;
};
