: > validator.log
