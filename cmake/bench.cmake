# Benchmarks: one program a job, each prints a ratio measured in one run.
