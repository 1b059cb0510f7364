scopix_add_bench(world_actions Scopix::xsg benchmark::benchmark)
