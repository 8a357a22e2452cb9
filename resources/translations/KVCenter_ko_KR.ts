<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>ActionButton</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>ChartFilterRow</name>
    <message>
        <source>Low-pass filter</source>
        <translation>저역 통과 필터</translation>
    </message>
    <message>
        <source>Cutoff frequency</source>
        <translation>차단 주파수</translation>
    </message>
</context>
<context>
    <name>ChartLegendEntry</name>
    <message>
        <source>Hide %1</source>
        <translation>%1 숨기기</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>%1 표시</translation>
    </message>
</context>
<context>
    <name>ChartReadout</name>
    <message>
        <source>t %1</source>
        <translation>t %1</translation>
    </message>
</context>
<context>
    <name>ChartSaver</name>
    <message>
        <source>Save the visible samples</source>
        <translation>표시된 샘플 저장</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>CSV 파일 (*.csv)</translation>
    </message>
    <message>
        <source>The picture could not be taken.</source>
        <translation>이미지를 만들 수 없습니다.</translation>
    </message>
    <message>
        <source>Save a picture of the chart</source>
        <translation>그래프 이미지 저장</translation>
    </message>
    <message>
        <source>PNG picture (*.png)</source>
        <translation>PNG 이미지 (*.png)</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>저장됨: %1</translation>
    </message>
</context>
<context>
    <name>CommandSession</name>
    <message>
        <source>The device does not answer. Check the baud rate, then identify it again.</source>
        <translation>장치가 응답하지 않습니다. 보드 레이트를 확인한 다음 다시 식별하십시오.</translation>
    </message>
    <message>
        <source>The device refused %1.</source>
        <translation>장치가 명령을 거부했습니다: %1.</translation>
    </message>
    <message>
        <source>The settings were sent and the device has restarted.</source>
        <translation>설정을 전송했으며 장치가 다시 시작되었습니다.</translation>
    </message>
    <message>
        <source>(no reply)</source>
        <translation>(응답 없음)</translation>
    </message>
</context>
<context>
    <name>DashboardWindow</name>
    <message>
        <source>This window could not be loaded. The log of the program tells why.</source>
        <translation>이 창을 불러올 수 없습니다. 원인은 프로그램 로그를 확인하십시오.</translation>
    </message>
</context>
<context>
    <name>FftAlarm</name>
    <message>
        <source>Resultant</source>
        <translation>합성</translation>
    </message>
    <message>
        <source>%1 Hz on %2 (amp %3)</source>
        <translation>%1 Hz(%2, 진폭 %3)</translation>
    </message>
    <message>
        <source>Band %1 | Watch &gt;= %2 | Alarm &gt;= %3 | %4 frame(s)</source>
        <translation>대역 %1 | 주의 &gt;= %2 | 경보 &gt;= %3 | %4프레임</translation>
    </message>
    <message>
        <source>%1-%2 Hz</source>
        <translation>%1~%2 Hz</translation>
    </message>
    <message>
        <source>%1 Hz and above</source>
        <translation>%1 Hz 이상</translation>
    </message>
    <message>
        <source>All frequencies</source>
        <translation>전체 주파수</translation>
    </message>
    <message>
        <source>General</source>
        <translation>일반</translation>
    </message>
    <message>
        <source>Industrial</source>
        <translation>산업 기계</translation>
    </message>
    <message>
        <source>Human</source>
        <translation>인체 동작</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>정상</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>주의</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>경보</translation>
    </message>
    <message>
        <source>Use cursor A/B to inspect the dominant peak.</source>
        <translation>커서 A/B로 주 피크를 확인하십시오.</translation>
    </message>
    <message>
        <source>Use cursor A/B to compare the dominant peak with nearby harmonics and band changes.</source>
        <translation>커서 A/B로 주 피크를 인접 고조파 및 대역 변화와 비교하십시오.</translation>
    </message>
    <message>
        <source>Low-frequency drift zone</source>
        <translation>저주파 드리프트 영역</translation>
    </message>
    <message>
        <source>Primary motion zone</source>
        <translation>주 운동 영역</translation>
    </message>
    <message>
        <source>Vibration zone</source>
        <translation>진동 영역</translation>
    </message>
    <message>
        <source>High-frequency impact zone</source>
        <translation>고주파 충격 영역</translation>
    </message>
    <message>
        <source>Structural / looseness zone</source>
        <translation>구조/풀림 영역</translation>
    </message>
    <message>
        <source>Check mounting bolts, frame looseness, and base stiffness.</source>
        <translation>고정 볼트, 프레임 풀림, 베이스 강성을 점검하십시오.</translation>
    </message>
    <message>
        <source>Rotating equipment zone</source>
        <translation>회전 기기 영역</translation>
    </message>
    <message>
        <source>Compare with shaft speed and inspect imbalance, misalignment, or coupling issues.</source>
        <translation>축 회전 속도와 비교하고 불평형, 축 정렬 불량, 커플링 이상을 점검하십시오.</translation>
    </message>
    <message>
        <source>Bearing / gear zone</source>
        <translation>베어링/기어 영역</translation>
    </message>
    <message>
        <source>Inspect bearings, gears, and resonance paths around the measured axis.</source>
        <translation>측정 축 주변의 베어링, 기어, 공진 경로를 점검하십시오.</translation>
    </message>
    <message>
        <source>Impact / resonance zone</source>
        <translation>충격/공진 영역</translation>
    </message>
    <message>
        <source>Check for repeated impacts, chatter, looseness, or hard contact.</source>
        <translation>반복 충격, 채터, 풀림, 강한 접촉이 있는지 점검하십시오.</translation>
    </message>
    <message>
        <source>Posture / sway zone</source>
        <translation>자세/흔들림 영역</translation>
    </message>
    <message>
        <source>Review posture, balance, and slow body sway over a longer window.</source>
        <translation>더 긴 구간에서 자세, 균형, 느린 신체 흔들림을 확인하십시오.</translation>
    </message>
    <message>
        <source>Gait / repetition zone</source>
        <translation>보행/반복 동작 영역</translation>
    </message>
    <message>
        <source>Compare cadence, stride rhythm, and left/right symmetry.</source>
        <translation>보행률, 보행 리듬, 좌우 대칭을 비교하십시오.</translation>
    </message>
    <message>
        <source>Tremor / shake zone</source>
        <translation>떨림 영역</translation>
    </message>
    <message>
        <source>Observe sustained tremor-like motion and compare different postures or limbs.</source>
        <translation>지속적인 떨림 동작을 관찰하고 다른 자세나 팔다리와 비교하십시오.</translation>
    </message>
    <message>
        <source>Impact / abrupt motion zone</source>
        <translation>충격/급격한 동작 영역</translation>
    </message>
    <message>
        <source>Mark abrupt movement, foot strike, or collision-like events and review the raw waveform.</source>
        <translation>급격한 움직임, 발 디딤, 충돌과 같은 이벤트를 표시하고 원시 파형을 확인하십시오.</translation>
    </message>
    <message>
        <source>General zone</source>
        <translation>일반 영역</translation>
    </message>
    <message>
        <source>No dominant FFT peak is available yet, so the alarm cannot classify the current motion or vibration.</source>
        <translation>아직 FFT 주 피크가 없어 현재의 움직임이나 진동을 분류할 수 없습니다.</translation>
    </message>
    <message>
        <source>Start or resume FFT updates and wait for a stable peak before acting on the alarm.</source>
        <translation>FFT 업데이트를 시작하거나 재개하고, 피크가 안정된 다음 경보에 대응하십시오.</translation>
    </message>
    <message>
        <source>%1 monitoring: waiting for data</source>
        <translation>%1 모니터링: 데이터 대기 중</translation>
    </message>
    <message>
        <source>%1 monitoring: no dominant peak yet.</source>
        <translation>%1 모니터링: 아직 주 피크가 없습니다.</translation>
    </message>
    <message>
        <source>%1 monitoring: %2 is below the watch level.</source>
        <translation>%1 모니터링: %2 피크가 주의 수준보다 낮습니다.</translation>
    </message>
    <message>
        <source>%1 watch: %2 is approaching the alarm threshold.</source>
        <translation>%1 주의: %2 피크가 경보 임계값에 접근하고 있습니다.</translation>
    </message>
    <message>
        <source>%1 alarm: %2 persisted above threshold.</source>
        <translation>%1 경보: %2 피크가 임계값을 계속 초과했습니다.</translation>
    </message>
    <message>
        <source>%1 monitoring: dominant peak outside target band</source>
        <translation>%1 모니터링: 주 피크가 대상 대역을 벗어남</translation>
    </message>
    <message>
        <source>%1 monitoring: %2 is outside the target band.</source>
        <translation>%1 모니터링: %2 피크가 대상 대역을 벗어났습니다.</translation>
    </message>
    <message>
        <source>The dominant peak %1 is outside the monitored band %2, so this preset stays idle.</source>
        <translation>%1의 주 피크가 감시 대역 %2 밖에 있으므로 이 프리셋은 대기 상태를 유지합니다.</translation>
    </message>
    <message>
        <source>If this frequency matters for your use case, switch presets or set a custom alarm rule.</source>
        <translation>이 주파수가 사용 목적에 중요하면 프리셋을 바꾸거나 사용자 지정 경보 규칙을 설정하십시오.</translation>
    </message>
    <message>
        <source>The dominant peak %1 is in the %2 and remains below the watch threshold.</source>
        <translation>%1의 주 피크가 %2에 있으며 주의 임계값보다 낮습니다.</translation>
    </message>
    <message>
        <source>The dominant peak %1 is in the %2 and is approaching the alarm threshold.</source>
        <translation>%1의 주 피크가 %2에 있으며 경보 임계값에 접근하고 있습니다.</translation>
    </message>
    <message>
        <source>The dominant peak %1 is in the %2 and stayed above the alarm threshold long enough to be treated as a persistent event.</source>
        <translation>%1의 주 피크가 %2에 있으며 경보 임계값을 충분히 오래 초과하여 지속적인 이벤트로 판정되었습니다.</translation>
    </message>
</context>
<context>
    <name>FftBand</name>
    <message>
        <source>Low</source>
        <translation>저역</translation>
    </message>
    <message>
        <source>Mid</source>
        <translation>중역</translation>
    </message>
    <message>
        <source>High</source>
        <translation>고역</translation>
    </message>
</context>
<context>
    <name>FftChartBridge</name>
    <message>
        <source>The band needs a name.</source>
        <translation>대역 이름을 입력하십시오.</translation>
    </message>
    <message>
        <source>The upper edge must be above the lower one.</source>
        <translation>대역의 상한은 하한보다 커야 합니다.</translation>
    </message>
    <message>
        <source>There are %1 bands already.</source>
        <translation>대역이 이미 %1개 있습니다.</translation>
    </message>
    <message>
        <source>Custom rule</source>
        <translation>사용자 지정 규칙</translation>
    </message>
    <message>
        <source>The upper frequency must be above the lower one, or 0 for no limit.</source>
        <translation>상한 주파수는 하한 주파수보다 크거나 0(제한 없음)이어야 합니다.</translation>
    </message>
    <message>
        <source>The alarm threshold must not be below the watch threshold, and both must be above 0.</source>
        <translation>경보 임계값은 주의 임계값 이상이어야 하며 둘 다 0보다 커야 합니다.</translation>
    </message>
    <message>
        <source>The frequencies are out of range.</source>
        <translation>주파수가 범위를 벗어났습니다.</translation>
    </message>
    <message>
        <source>Raised at %1 Hz, amplitude %2</source>
        <translation>%1 Hz에서 발생, 진폭 %2</translation>
    </message>
    <message>
        <source>Cleared</source>
        <translation>해제됨</translation>
    </message>
    <message>
        <source>up</source>
        <translation>상승</translation>
    </message>
    <message>
        <source>steady</source>
        <translation>안정</translation>
    </message>
    <message>
        <source>Coherence disabled</source>
        <translation>코히런스 사용 안 함</translation>
    </message>
    <message>
        <source>Latency %1ms avg / %2ms max | Dropped %3 | Clipping %4 | Confidence %5</source>
        <translation>지연 평균 %1ms / 최대 %2ms | 누락 %3 | 클리핑 %4 | 신뢰도 %5</translation>
    </message>
</context>
<context>
    <name>FftSnapshot</name>
    <message>
        <source>The file could not be written: %1</source>
        <translation>파일에 쓸 수 없습니다: %1</translation>
    </message>
    <message>
        <source>The file could not be read: %1</source>
        <translation>파일을 읽을 수 없습니다: %1</translation>
    </message>
    <message>
        <source>The file is no spectrum snapshot.</source>
        <translation>스펙트럼 스냅샷 파일이 아닙니다.</translation>
    </message>
</context>
<context>
    <name>FftWindow</name>
    <message>
        <source>Rectangular</source>
        <translation>직사각형</translation>
    </message>
    <message>
        <source>Hann</source>
        <translation>해닝(Hann)</translation>
    </message>
    <message>
        <source>Hamming</source>
        <translation>해밍</translation>
    </message>
    <message>
        <source>Blackman</source>
        <translation>블랙먼</translation>
    </message>
    <message>
        <source>Flat Top</source>
        <translation>플랫톱</translation>
    </message>
</context>
<context>
    <name>GatewayDashboardBridge</name>
    <message>
        <source>Wireless Gateway Dashboard</source>
        <translation>무선 게이트웨이 대시보드</translation>
    </message>
    <message>
        <source>Nodes %1 · late %2 · gone %3</source>
        <translation>노드 %1 · 지연 %2 · 끊김 %3</translation>
    </message>
    <message>
        <source>Node %1</source>
        <translation>노드 %1</translation>
    </message>
</context>
<context>
    <name>GatewayNodeModel</name>
    <message>
        <source>Live</source>
        <translation>수신 중</translation>
    </message>
    <message>
        <source>Late</source>
        <translation>지연</translation>
    </message>
    <message>
        <source>Gone</source>
        <translation>끊김</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1분</translation>
    </message>
</context>
<context>
    <name>MessageRow</name>
    <message>
        <source>Dismiss</source>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>SensorDashboard</name>
    <message>
        <source>Pause</source>
        <translation>일시 정지</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>재개</translation>
    </message>
    <message>
        <source>Hold the picture; recordings go on</source>
        <translation>화면 일시 정지(기록은 계속됨)</translation>
    </message>
    <message>
        <source>Go on with the newest samples</source>
        <translation>최신 샘플부터 다시 표시</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>스페이스바</translation>
    </message>
    <message>
        <source>Hide this chart</source>
        <translation>이 그래프 숨기기</translation>
    </message>
    <message>
        <source>Show this chart</source>
        <translation>이 그래프 표시</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message>
        <source>Paused · %1 Hz</source>
        <translation>일시 정지됨 · %1 Hz</translation>
    </message>
    <message>
        <source>No chart is chosen</source>
        <translation>선택된 그래프 없음</translation>
    </message>
    <message>
        <source>Choose above what to show.</source>
        <translation>표시할 항목을 위에서 선택하십시오.</translation>
    </message>
</context>
<context>
    <name>SensorDashboardBridge</name>
    <message>
        <source>Acceleration</source>
        <translation>가속도</translation>
    </message>
    <message>
        <source>Angular Velocity</source>
        <translation>각속도</translation>
    </message>
    <message>
        <source>Magnetic Field</source>
        <translation>자기장</translation>
    </message>
    <message>
        <source>Euler Angles</source>
        <translation>오일러 각</translation>
    </message>
    <message>
        <source>Quaternion</source>
        <translation>쿼터니언</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>기압</translation>
    </message>
    <message>
        <source>Sensor Dashboard</source>
        <translation>센서 대시보드</translation>
    </message>
</context>
<context>
    <name>SensorDataPanel</name>
    <message>
        <source>Acceleration</source>
        <translation>가속도</translation>
    </message>
    <message>
        <source>Angular rate</source>
        <translation>각속도</translation>
    </message>
    <message>
        <source>Magnetic field</source>
        <translation>자기장</translation>
    </message>
    <message>
        <source>Quaternion</source>
        <translation>쿼터니언</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>노드</translation>
    </message>
    <message>
        <source>Device time</source>
        <translation>장치 시간</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>온도</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>기압</translation>
    </message>
</context>
<context>
    <name>ToolADI</name>
    <message>
        <source>N</source>
        <comment>north</comment>
        <translation>북</translation>
    </message>
    <message>
        <source>E</source>
        <comment>east</comment>
        <translation>동</translation>
    </message>
    <message>
        <source>S</source>
        <comment>south</comment>
        <translation>남</translation>
    </message>
    <message>
        <source>W</source>
        <comment>west</comment>
        <translation>서</translation>
    </message>
    <message>
        <source>Attitude indicator</source>
        <translation>자세 지시계</translation>
    </message>
    <message>
        <source>No attitude</source>
        <translation>자세 데이터 없음</translation>
    </message>
</context>
<context>
    <name>WaveChart</name>
    <message>
        <source>Waiting for samples</source>
        <translation>샘플을 기다리는 중</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>최신으로</translation>
    </message>
    <message>
        <source>Back to the newest samples</source>
        <translation>최신 샘플로 돌아가기</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>Low-pass filter</source>
        <translation>저역 통과 필터</translation>
    </message>
    <message>
        <source>Remove the measuring cursors</source>
        <translation>측정 커서 지우기</translation>
    </message>
    <message>
        <source>Measure between two cursors</source>
        <translation>두 커서 사이 측정</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>A, B</source>
        <translation>A, B</translation>
    </message>
    <message>
        <source>Reset the view</source>
        <translation>보기 초기화</translation>
    </message>
    <message>
        <source>Save a picture of the chart</source>
        <translation>그래프 이미지 저장</translation>
    </message>
    <message>
        <source>Save the visible samples</source>
        <translation>표시된 샘플 저장</translation>
    </message>
    <message>
        <source>Show all charts</source>
        <translation>모든 그래프 표시</translation>
    </message>
    <message>
        <source>Show this chart alone</source>
        <translation>이 그래프만 표시</translation>
    </message>
</context>
<context>
    <name>WaveChartBridge</name>
    <message>
        <source>Acceleration (G)</source>
        <translation>가속도 (G)</translation>
    </message>
    <message>
        <source>Angular Velocity (°/s)</source>
        <translation>각속도 (°/s)</translation>
    </message>
    <message>
        <source>Magnetic Field (μT)</source>
        <translation>자기장 (μT)</translation>
    </message>
    <message>
        <source>Euler Angles (°)</source>
        <translation>오일러 각 (°)</translation>
    </message>
    <message>
        <source>Quaternion (Norm)</source>
        <translation>쿼터니언 (정규화)</translation>
    </message>
    <message>
        <source>Pressure (Pa)</source>
        <translation>기압 (Pa)</translation>
    </message>
    <message>
        <source>The cutoff frequency must be above 0 Hz.</source>
        <translation>차단 주파수는 0 Hz보다 커야 합니다.</translation>
    </message>
    <message>
        <source>The cutoff frequency is too low for %1 samples per second.</source>
        <translation>차단 주파수가 샘플링 주파수 %1 Hz에 비해 너무 낮습니다.</translation>
    </message>
</context>
<context>
    <name>chart_export</name>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>%1 파일에 쓸 수 없습니다: %2</translation>
    </message>
</context>
<context>
    <name>form_about</name>
    <message>
        <source>About ORVEL-IMU</source>
        <translation>ORVEL-IMU 정보</translation>
    </message>
    <message>
        <source>KVCenter shows the data of inertial measurement units on a serial line and sets the units up.</source>
        <translation>KVCenter는 시리얼로 연결된 관성 측정 장치(IMU)의 데이터를 표시하고 장치를 설정합니다.</translation>
    </message>
    <message>
        <source>Toolkit</source>
        <translation>툴킷</translation>
    </message>
    <message>
        <source>Settings and logs</source>
        <translation>설정 및 로그</translation>
    </message>
    <message>
        <source>Folder of settings and logs</source>
        <translation>설정 및 로그 폴더</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Qt %1 (licence: GNU LGPL, version 3)</source>
        <translation>Qt %1(라이선스: GNU LGPL 버전 3)</translation>
    </message>
</context>
<context>
    <name>form_base</name>
    <message>
        <source>No device connected</source>
        <translation>연결된 장치 없음</translation>
    </message>
    <message>
        <source>Open port...</source>
        <translation>포트 열기...</translation>
    </message>
    <message>
        <source>No hardware at hand? The simulator kv_simulator behaves like a device and prints the path of the port to open.</source>
        <translation>실제 장치가 없으면 시뮬레이터 kv_simulator를 사용할 수 있습니다. 시뮬레이터는 장치처럼 동작하며 열어야 할 포트의 경로를 출력합니다.</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>연결</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>장치</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>제품</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>모델</translation>
    </message>
    <message>
        <source>Build</source>
        <translation>빌드</translation>
    </message>
    <message>
        <source>UUID</source>
        <translation>UUID</translation>
    </message>
    <message>
        <source>&amp;Mounting</source>
        <translation>장착(&amp;M)</translation>
    </message>
    <message>
        <source>How the device is mounted; remembered for each product</source>
        <translation>장치의 장착 방향(제품별로 기억됨)</translation>
    </message>
    <message>
        <source>RFU / ENU (3-1-2)</source>
        <translation>RFU / ENU (3-1-2)</translation>
    </message>
    <message>
        <source>FLU / NWU (Z-Y-X)</source>
        <translation>FLU / NWU (Z-Y-X)</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>노드</translation>
    </message>
    <message>
        <source>The node whose values are shown</source>
        <translation>값을 표시할 노드</translation>
    </message>
    <message>
        <source>Attitude</source>
        <translation>자세</translation>
    </message>
    <message>
        <source>&amp;Serial</source>
        <translation>시리얼(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>보기(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Font size</source>
        <translation>글꼴 크기(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>도구(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>도움말(&amp;H)</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>도구 모음</translation>
    </message>
    <message>
        <source>&amp;Open port...</source>
        <translation>포트 열기(&amp;O)...</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>&amp;Close port</source>
        <translation>포트 닫기(&amp;C)</translation>
    </message>
    <message>
        <source>Ctrl+W</source>
        <translation>Ctrl+W</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>종료(&amp;Q)</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>&amp;Spectrum</source>
        <translation>스펙트럼(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;3D view</source>
        <translation>3D 보기(&amp;3)</translation>
    </message>
    <message>
        <source>&amp;Copy values</source>
        <translation>값 복사(&amp;C)</translation>
    </message>
    <message>
        <source>Ctrl+Shift+C</source>
        <translation>Ctrl+Shift+C</translation>
    </message>
    <message>
        <source>Copy all values of the selected node to the clipboard</source>
        <translation>선택한 노드의 모든 값을 클립보드에 복사합니다</translation>
    </message>
    <message>
        <source>&amp;Small</source>
        <translation>작게(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Medium</source>
        <translation>보통(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Big</source>
        <translation>크게(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Record...</source>
        <translation>기록(&amp;R)...</translation>
    </message>
    <message>
        <source>&amp;Device settings...</source>
        <translation>장치 설정(&amp;D)...</translation>
    </message>
    <message>
        <source>Ctrl+E</source>
        <translation>Ctrl+E</translation>
    </message>
    <message>
        <source>Identify and configure the device (Ctrl+E)</source>
        <translation>장치를 식별하고 설정합니다 (Ctrl+E)</translation>
    </message>
    <message>
        <source>&amp;Firmware update...</source>
        <translation>펌웨어 업데이트(&amp;F)...</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>정보(&amp;A)</translation>
    </message>
    <message>
        <source>Unconnected...</source>
        <translation>연결 안 됨...</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>롤</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>피치</translation>
    </message>
    <message>
        <source>Yaw</source>
        <translation>요</translation>
    </message>
    <message>
        <source>Sensor Dashboard</source>
        <translation>센서 대시보드</translation>
    </message>
    <message>
        <source>Wireless Gateway Dashboard</source>
        <translation>무선 게이트웨이 대시보드</translation>
    </message>
    <message>
        <source>Waves</source>
        <translation>파형</translation>
    </message>
    <message>
        <source>Gateway</source>
        <translation>게이트웨이</translation>
    </message>
    <message>
        <source>The spectrum comes with a later version.</source>
        <translation>스펙트럼 기능은 이후 버전에서 제공됩니다.</translation>
    </message>
    <message>
        <source>The 3D view comes with a later version.</source>
        <translation>3D 보기는 이후 버전에서 제공됩니다.</translation>
    </message>
    <message>
        <source>The firmware update comes with a later version.</source>
        <translation>펌웨어 업데이트는 이후 버전에서 제공됩니다.</translation>
    </message>
    <message>
        <source>Choose a serial port and connect (%1)</source>
        <translation>시리얼 포트를 선택하여 연결합니다 (%1)</translation>
    </message>
    <message>
        <source>Close the serial port (%1)</source>
        <translation>시리얼 포트를 닫습니다 (%1)</translation>
    </message>
    <message>
        <source>Plug in a module or a gateway, press &lt;b&gt;Open port&lt;/b&gt; (%1) and choose its serial port.</source>
        <translation>모듈 또는 게이트웨이를 연결하고 &lt;b&gt;포트 열기&lt;/b&gt;(%1)를 누른 다음 해당 시리얼 포트를 선택하십시오.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written: settings and logs of this run are not kept.</source>
        <translation>%1 폴더에 쓸 수 없어 이번 실행의 설정과 로그가 저장되지 않습니다.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>연결 중...</translation>
    </message>
    <message>
        <source>Connected... %1, %2 baud</source>
        <translation>연결됨... %1, %2 baud</translation>
    </message>
    <message>
        <source>Open Serial Port Error.</source>
        <translation>시리얼 포트를 열 수 없습니다.</translation>
    </message>
    <message>
        <source>Node ID:%1</source>
        <translation>노드 ID:%1</translation>
    </message>
    <message>
        <source>Waveforms of the selected node</source>
        <translation>선택한 노드의 파형을 표시합니다</translation>
    </message>
    <message>
        <source>All radio nodes of a connected wireless gateway</source>
        <translation>연결된 무선 게이트웨이의 모든 무선 노드를 표시합니다</translation>
    </message>
    <message>
        <source>Language of the interface</source>
        <translation>표시 언어</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>Record the stream to CSV files (%1)</source>
        <translation>수신 데이터를 CSV 파일로 기록합니다 (%1)</translation>
    </message>
    <message>
        <source>Recording: trouble</source>
        <translation>기록: 문제 발생</translation>
    </message>
    <message>
        <source>Recording %1</source>
        <translation>기록 중 %1</translation>
    </message>
    <message>
        <source>The translation for %1 cannot be loaded. The language stays as it is.</source>
        <translation>번역을 불러올 수 없습니다: %1. 표시 언어는 변경되지 않습니다.</translation>
    </message>
</context>
<context>
    <name>form_com_select</name>
    <message>
        <source>Open serial port</source>
        <translation>시리얼 포트 열기</translation>
    </message>
    <message>
        <source>&amp;Serial ports</source>
        <translation>시리얼 포트(&amp;S)</translation>
    </message>
    <message>
        <source>Serial ports</source>
        <translation>시리얼 포트</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>포트</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>설명</translation>
    </message>
    <message>
        <source>Maker</source>
        <translation>제조사</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>일련번호</translation>
    </message>
    <message>
        <source>No serial port found</source>
        <translation>시리얼 포트를 찾을 수 없음</translation>
    </message>
    <message>
        <source>Plug the device in: it appears here by itself.

To try the program without a device, start the simulator in a terminal with ./run or kv_simulator. It prints a path: type that below.</source>
        <translation>장치를 연결하면 여기에 자동으로 표시됩니다.

장치 없이 프로그램을 사용해 보려면 터미널에서 ./run 또는 kv_simulator를 실행하여 시뮬레이터를 시작하고, 출력된 경로를 아래에 입력하십시오.</translation>
    </message>
    <message>
        <source>&amp;Port or path</source>
        <translation>포트 또는 경로(&amp;P)</translation>
    </message>
    <message>
        <source>A port of the list, or a path typed by hand: a pseudo-terminal or a link to a device file</source>
        <translation>목록의 포트 또는 직접 입력한 경로(의사 터미널이나 장치 파일 링크)</translation>
    </message>
    <message>
        <source>&amp;Baud rate</source>
        <translation>보드 레이트(&amp;B)</translation>
    </message>
    <message>
        <source>Bits per second, as set in the device</source>
        <translation>초당 비트 수(장치에 설정된 값)</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>열기(&amp;O)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Choose a port or type its path.</source>
        <translation>포트를 선택하거나 경로를 입력하십시오.</translation>
    </message>
    <message>
        <source>%1 is not there at the moment. Plug the device in, or choose another port.</source>
        <translation>지금은 %1 포트를 찾을 수 없습니다. 장치를 연결하거나 다른 포트를 선택하십시오.</translation>
    </message>
    <message>
        <source>%1 is not a serial port.</source>
        <translation>시리얼 포트가 아닙니다: %1</translation>
    </message>
</context>
<context>
    <name>form_record</name>
    <message>
        <source>Record to file</source>
        <translation>파일로 기록</translation>
    </message>
    <message>
        <source>&amp;Folder</source>
        <translation>폴더(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>찾아보기(&amp;B)...</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>이름(&amp;N)</translation>
    </message>
    <message>
        <source>Elapsed time</source>
        <translation>경과 시간</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>기록 속도</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>파일 크기</translation>
    </message>
    <message>
        <source>Free on disk</source>
        <translation>디스크 여유 공간</translation>
    </message>
    <message>
        <source>File</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>Show in f&amp;older</source>
        <translation>폴더 열기(&amp;O)</translation>
    </message>
    <message>
        <source>Opens the folder of the recording</source>
        <translation>기록 파일이 있는 폴더를 엽니다</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>닫기(&amp;C)</translation>
    </message>
    <message>
        <source>Type a name.</source>
        <translation>이름을 입력하십시오.</translation>
    </message>
    <message>
        <source>This name is too long.</source>
        <translation>이름이 너무 깁니다.</translation>
    </message>
    <message>
        <source>A name cannot hold any of %1</source>
        <translation>이름에 사용할 수 없는 문자: %1</translation>
    </message>
    <message>
        <source>This name is reserved by some systems. Choose another one.</source>
        <translation>일부 시스템에서 예약된 이름입니다. 다른 이름을 지정하십시오.</translation>
    </message>
    <message>
        <source>Folder for recordings</source>
        <translation>기록 폴더</translation>
    </message>
    <message>
        <source>Nothing is connected: open a serial port first.</source>
        <translation>연결된 장치가 없습니다. 먼저 시리얼 포트를 여십시오.</translation>
    </message>
    <message>
        <source>Choose a folder.</source>
        <translation>폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>&amp;Stop recording</source>
        <translation>기록 중지(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Start recording</source>
        <translation>기록 시작(&amp;S)</translation>
    </message>
    <message>
        <source>Writes what has arrived and closes the file</source>
        <translation>수신한 데이터를 쓰고 파일을 닫습니다</translation>
    </message>
    <message>
        <source>Writes every sample that arrives into a file</source>
        <translation>수신하는 모든 샘플을 파일에 씁니다</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>기록 중</translation>
    </message>
    <message>
        <source>Recording ended: the port was closed</source>
        <translation>포트가 닫혀 기록이 종료됨</translation>
    </message>
    <message>
        <source>Recording stopped</source>
        <translation>기록 중지됨</translation>
    </message>
    <message>
        <source>Not recording</source>
        <translation>기록하지 않음</translation>
    </message>
    <message>
        <source>Recording goes on when this window is closed.</source>
        <translation>이 창을 닫아도 기록은 계속됩니다.</translation>
    </message>
    <message>
        <source>Stop the recording to change this</source>
        <translation>변경하려면 기록을 중지하십시오</translation>
    </message>
    <message>
        <source>This folder was created for the recording.</source>
        <translation>이 폴더는 기록을 위해 생성되었습니다.</translation>
    </message>
    <message>
        <source>This folder does not exist yet: starting creates it.</source>
        <translation>아직 없는 폴더입니다. 기록을 시작하면 생성됩니다.</translation>
    </message>
    <message>
        <source>Saved as %1; a new file begins every hour.</source>
        <translation>저장 이름: %1. 1시간마다 새 파일이 시작됩니다.</translation>
    </message>
    <message>
        <source>%1 records/s</source>
        <translation>%1건/초</translation>
    </message>
    <message>
        <source>%1, enough for days</source>
        <translation>%1(며칠 이상 기록 가능)</translation>
    </message>
    <message>
        <source>%1, enough for %2 h</source>
        <translation>%1(약 %2시간 기록 가능)</translation>
    </message>
    <message>
        <source>%1, enough for %2 min</source>
        <translation>%1(약 %2분 기록 가능)</translation>
    </message>
    <message>
        <source>%1 is a file, not a folder.</source>
        <translation>폴더가 아니라 파일입니다: %1</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created. Choose another one.</source>
        <translation>%1 폴더를 만들 수 없습니다. 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 파일에 쓸 수 없습니다: %2</translation>
    </message>
    <message>
        <source>The disk is too slow. Records dropped: %1</source>
        <translation>디스크 쓰기 속도가 너무 느립니다. 버려진 레코드 수: %1</translation>
    </message>
    <message>
        <source>The file cannot be written: %1</source>
        <translation>파일에 쓸 수 없습니다: %1</translation>
    </message>
    <message>
        <source>Records that could not be written: %1</source>
        <translation>쓰지 못한 레코드 수: %1</translation>
    </message>
    <message>
        <source>%1 has been deleted or moved. Stop and start again to record into a new file.</source>
        <translation>%1 파일이 삭제되거나 이동되었습니다. 새 파일에 기록하려면 기록을 중지한 다음 다시 시작하십시오.</translation>
    </message>
    <message>
        <source>The disk is nearly full.</source>
        <translation>디스크 여유 공간이 거의 없습니다.</translation>
    </message>
    <message>
        <source>Records written</source>
        <translation>기록된 레코드 수</translation>
    </message>
    <message>
        <source>The folder %1 cannot be shown.</source>
        <translation>%1 폴더를 열 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>form_settings</name>
    <message>
        <source>Device settings</source>
        <translation>장치 설정</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>제품</translation>
    </message>
    <message>
        <source>&amp;Identify</source>
        <translation>식별(&amp;I)</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>모델</translation>
    </message>
    <message>
        <source>Build</source>
        <translation>빌드</translation>
    </message>
    <message>
        <source>&amp;Module</source>
        <translation>모듈(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Node ID</source>
        <translation>노드 ID(&amp;N)</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>선택</translation>
    </message>
    <message>
        <source>Number of the module in a radio network, 0 to 255</source>
        <translation>무선 네트워크의 모듈 번호(0~255)</translation>
    </message>
    <message>
        <source>Output &amp;rate (Hz)</source>
        <translation>출력 속도(&amp;R) (Hz)</translation>
    </message>
    <message>
        <source>&amp;Attitude mode</source>
        <translation>자세 모드(&amp;A)</translation>
    </message>
    <message>
        <source>0: 6-axis, without magnetometer</source>
        <translation>0: 6축(자력계 미사용)</translation>
    </message>
    <message>
        <source>1: 9-axis, with magnetometer</source>
        <translation>1: 9축(자력계 사용)</translation>
    </message>
    <message>
        <source>Leave as it is</source>
        <translation>변경 안 함</translation>
    </message>
    <message>
        <source>Which settings can be changed depends on the device. Connect it and identify it.</source>
        <translation>변경할 수 있는 설정은 장치에 따라 다릅니다. 장치를 연결하고 식별하십시오.</translation>
    </message>
    <message>
        <source>&amp;Save to device</source>
        <translation>장치에 저장(&amp;S)</translation>
    </message>
    <message>
        <source>C&amp;ommands</source>
        <translation>명령(&amp;O)</translation>
    </message>
    <message>
        <source>Sent and received</source>
        <translation>송수신</translation>
    </message>
    <message>
        <source>&amp;Copy log</source>
        <translation>로그 복사(&amp;C)</translation>
    </message>
    <message>
        <source>Nothing sent yet</source>
        <translation>아직 전송한 내용 없음</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>닫기(&amp;L)</translation>
    </message>
    <message>
        <source>Read info</source>
        <translation>정보 읽기</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>리셋</translation>
    </message>
    <message>
        <source>Stop output</source>
        <translation>출력 중지</translation>
    </message>
    <message>
        <source>Resume output</source>
        <translation>출력 재개</translation>
    </message>
    <message>
        <source>Save config</source>
        <translation>설정 저장</translation>
    </message>
    <message>
        <source>Log COM config</source>
        <translation>COM 설정 출력</translation>
    </message>
    <message>
        <source>Log user config</source>
        <translation>사용자 설정 출력</translation>
    </message>
    <message>
        <source>Log disable</source>
        <translation>로그 끄기</translation>
    </message>
    <message>
        <source>Reboot</source>
        <translation>다시 시작</translation>
    </message>
    <message>
        <source>No device identified</source>
        <translation>식별된 장치 없음</translation>
    </message>
    <message>
        <source>Saving does not change the rate of this device.</source>
        <translation>이 장치의 출력 속도는 저장해도 바뀌지 않습니다.</translation>
    </message>
    <message>
        <source>Nothing is connected: open a serial port first.</source>
        <translation>연결된 장치가 없습니다. 먼저 시리얼 포트를 여십시오.</translation>
    </message>
    <message>
        <source>Waiting for the device: %1</source>
        <translation>장치 응답 대기 중: %1</translation>
    </message>
    <message>
        <source>Identify the device first.</source>
        <translation>먼저 장치를 식별하십시오.</translation>
    </message>
    <message>
        <source>Choose a node ID first.</source>
        <translation>먼저 노드 ID를 선택하십시오.</translation>
    </message>
    <message>
        <source>Choose an output rate first.</source>
        <translation>먼저 출력 속도를 선택하십시오.</translation>
    </message>
    <message>
        <source>Sends %1</source>
        <translation>%1 명령을 전송합니다</translation>
    </message>
    <message>
        <source>Stops the output, reads what the device is and resumes the output</source>
        <translation>출력을 중지하고 장치 정보를 읽은 다음 출력을 재개합니다</translation>
    </message>
    <message>
        <source>Writes these settings and restarts the device</source>
        <translation>이 설정을 장치에 쓰고 장치를 다시 시작합니다</translation>
    </message>
    <message>
        <source>Saving restarts the device; this takes 2 seconds.</source>
        <translation>저장하면 장치가 다시 시작됩니다(2초 소요).</translation>
    </message>
</context>
<context>
    <name>port_choice</name>
    <message>
        <source>Enter a baud rate.</source>
        <translation>보드 레이트를 입력하십시오.</translation>
    </message>
    <message>
        <source>Enter a whole number, such as %1.</source>
        <translation>정수를 입력하십시오(예: %1).</translation>
    </message>
    <message>
        <source>Too low: the lowest rate is %1.</source>
        <translation>값이 너무 작습니다. 최솟값은 %1입니다.</translation>
    </message>
    <message>
        <source>Too high: the highest rate is %1.</source>
        <translation>값이 너무 큽니다. 최댓값은 %1입니다.</translation>
    </message>
</context>
<context>
    <name>product_profile</name>
    <message>
        <source>Legacy Wireless Gateway (0x62/0x63)</source>
        <translation>구형 무선 게이트웨이 (0x62/0x63)</translation>
    </message>
    <message>
        <source>Unknown Legacy Device</source>
        <translation>알 수 없는 구형 장치</translation>
    </message>
    <message>
        <source>Unknown Mz14 Device</source>
        <translation>알 수 없는 Mz14 장치</translation>
    </message>
    <message>
        <source>Unknown Wireless Gateway (0x62/0x63)</source>
        <translation>알 수 없는 무선 게이트웨이 (0x62/0x63)</translation>
    </message>
    <message>
        <source>Unknown Device</source>
        <translation>알 수 없는 장치</translation>
    </message>
</context>
<context>
    <name>serial_error_text</name>
    <message>
        <source>You are not allowed to open %1.</source>
        <translation>%1 포트를 열 권한이 없습니다.</translation>
    </message>
    <message>
        <source>Ask the administrator of this computer for access.</source>
        <translation>이 컴퓨터의 관리자에게 접근 권한을 요청하십시오.</translation>
    </message>
    <message>
        <source>Run &quot;%1&quot; in a terminal, then log out and in again.</source>
        <translation>터미널에서 &quot;%1&quot; 명령을 실행한 다음 로그아웃했다가 다시 로그인하십시오.</translation>
    </message>
    <message>
        <source>The connection to %1 was lost: the device was unplugged or switched off. Check the cable, then open the port again.</source>
        <translation>%1 포트와의 연결이 끊어졌습니다. 장치가 분리되었거나 전원이 꺼졌습니다. 케이블을 확인한 다음 포트를 다시 여십시오.</translation>
    </message>
    <message>
        <source>%1 is not there. Check the cable and that the device is switched on.</source>
        <translation>%1 포트를 찾을 수 없습니다. 케이블을 확인하고 장치의 전원이 켜져 있는지 확인하십시오.</translation>
    </message>
    <message>
        <source>Another program uses %1. Close it and try again.</source>
        <translation>다른 프로그램이 %1 포트를 사용하고 있습니다. 해당 프로그램을 종료한 다음 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>%1 is open already.</source>
        <translation>%1 포트가 이미 열려 있습니다.</translation>
    </message>
    <message>
        <source>%1 is not a serial port, or it does not support %2 baud. Choose another port or baud rate.</source>
        <translation>시리얼 포트가 아니거나 %2 baud를 지원하지 않습니다: %1. 다른 포트나 보드 레이트를 선택하십시오.</translation>
    </message>
    <message>
        <source>%1 cannot be used (error %2). Unplug the device, plug it in again and retry.</source>
        <translation>%1 포트를 사용할 수 없습니다(오류 %2). 장치를 분리했다가 다시 연결한 다음 재시도하십시오.</translation>
    </message>
</context>
<context>
    <name>status_text</name>
    <message>
        <source>Unconnected...</source>
        <translation>연결 안 됨...</translation>
    </message>
    <message>
        <source>Connected...</source>
        <translation>연결됨...</translation>
    </message>
    <message>
        <source>Using fallback product profile.</source>
        <translation>대체 제품 프로필을 사용합니다.</translation>
    </message>
    <message>
        <source>Product info deferred during live stream.</source>
        <translation>데이터 수신 중이므로 제품 정보 조회를 보류했습니다.</translation>
    </message>
    <message>
        <source>Product info pending...</source>
        <translation>제품 정보 조회 중...</translation>
    </message>
    <message>
        <source>Single node (0x%1)</source>
        <translation>단일 노드 (0x%1)</translation>
    </message>
    <message>
        <source>Gateway (0x%1)</source>
        <translation>게이트웨이 (0x%1)</translation>
    </message>
    <message>
        <source>Items %1</source>
        <translation>항목 %1</translation>
    </message>
    <message>
        <source>Connected.
No frame stream detected.</source>
        <translation>연결되었습니다.
프레임이 감지되지 않습니다.</translation>
    </message>
    <message>
        <source>Building connection...</source>
        <translation>연결을 설정하는 중...</translation>
    </message>
    <message>
        <source>[Serial]
%1 %2
</source>
        <translation>[시리얼]
%1 %2
</translation>
    </message>
    <message>
        <source>Protocol:</source>
        <translation>프로토콜:</translation>
    </message>
    <message>
        <source>FrameRate:</source>
        <translation>프레임 속도:</translation>
    </message>
    <message>
        <source>Wireless</source>
        <translation>무선</translation>
    </message>
    <message>
        <source>DONGLE ID</source>
        <translation>동글 ID</translation>
    </message>
    <message>
        <source>TOTAL OF NODE</source>
        <translation>전체 노드 수</translation>
    </message>
</context>
</TS>
