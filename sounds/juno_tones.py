"""Tones for the Alpha Juno, by what its panel says. What is not named keeps
its start value (make_sounds.py). The envelope is T1 L1 T2 L2 T3 L3 T4."""

juno_tones = {
    "Brass One": dict(
        saw=1, cutoff=48, vcf_env=60, vcf_key=60,
        env=(16, 127, 50, 90, 40, 80, 36), chorus=1, chorus_rate=30),
    "Big Brass": dict(
        saw=3, pulse=1, cutoff=44, vcf_env=74, vcf_mode=2, pwm=40, pwm_rate=50,
        env=(12, 127, 46, 86, 50, 70, 30)),
    "Strings": dict(
        saw=3, hpf=2, cutoff=80, env=(54, 127, 0, 127, 40, 118, 62), chorus=1,
        chorus_rate=60, dco_lfo=4, lfo_delay=60, pwm_rate=46),
    "Cellos": dict(
        saw=1, range=2, cutoff=66, env=(44, 127, 20, 120, 40, 112, 54),
        chorus=1, chorus_rate=50),
    "Wide Pad": dict(
        pulse=3, saw=3, pwm=80, pwm_rate=40, cutoff=52, vcf_env=30,
        env=(78, 127, 70, 96, 60, 90, 84), chorus=1, chorus_rate=26),
    "Sweep": dict(
        saw=3, cutoff=20, resonance=70, vcf_env=92,
        env=(96, 127, 90, 40, 70, 30, 90), vca_mode=1, chorus=1),
    "Hollow Pad": dict(
        pulse=1, sub=1, sub_level=2, cutoff=56, resonance=30,
        env=(64, 127, 60, 110, 50, 100, 80), chorus=1),
    "Sub Bass": dict(
        pulse=1, sub=4, sub_level=3, range=2, cutoff=40, vcf_env=40,
        vcf_key=40, env=(0, 127, 44, 70, 40, 50, 20), vcf_mode=2),
    "Rez Bass": dict(
        saw=1, sub=0, sub_level=2, range=2, cutoff=26, resonance=92,
        vcf_env=70, env=(0, 127, 40, 50, 36, 20, 18)),
    "Slap Bass": dict(
        pulse=2, saw=2, range=2, hpf=1, cutoff=40, vcf_env=80, vcf_mode=2,
        vca_mode=2, env=(0, 127, 34, 50, 40, 10, 20), pwm=50),
    "Soft Lead": dict(
        pulse=1, cutoff=70, resonance=16, dco_lfo=8, lfo_delay=64,
        env=(6, 127, 0, 127, 30, 120, 24), bend_range=7),
    "Hoover": dict(
        saw=3, pulse=3, sub=3, sub_level=3, pwm=100, pwm_rate=84, dco_env=40,
        range=2, cutoff=96, env=(40, 127, 40, 70, 60, 60, 40), chorus=1,
        chorus_rate=100, bend_range=12),
    "Organ": dict(
        pulse=1, sub=0, sub_level=3, cutoff=100, vca_mode=1, chorus=1,
        chorus_rate=76),
    "Bell Tree": dict(
        pulse=2, range=0, pwm=110, hpf=2, cutoff=104, vca_mode=2,
        env=(0, 127, 66, 40, 60, 0, 70), chorus=1),
    "Clavinet": dict(
        pulse=2, pwm=90, hpf=3, cutoff=62, vcf_env=50, vcf_mode=2, vca_mode=2,
        env=(0, 127, 50, 60, 40, 20, 14)),
    "Storm": dict(
        noise=3, sub_level=0, cutoff=46, resonance=50, vcf_lfo=50, lfo_rate=24,
        vcf_key=0, env=(80, 127, 60, 110, 60, 100, 96), chorus=1),
}
